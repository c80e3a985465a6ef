#pragma once

#include <algorithm>
#include <cstddef>
#include <iterator>
#include <optional>
#include <vector>

#include "platform/foundation/Cache.h"
#include "platform/layout/Geometry.h"
#include "platform/text/AttributedText.h"

namespace quorix::text {

/// Caches texts as a text engine breaks them into lines: layout measures a text several times, and
/// then it is painted. Texts that differ only in color or decoration share their lines. `Lines` are
/// the engine's own, with their `metrics`. One thread.
template <class Lines>
class LineCache {
 public:
  /// The lines of `text` at `width` points. Those that are not cached come from
  /// `breakLines(text, width)`. The reference holds until the next call.
  template <class Break>
  const Lines& lines(const AttributedText& text, double width, Break breakLines) {
    auto& known = entryOf(text).breakings;
    if (known.empty()) known.push_back({layout::infinity, breakLines(text, layout::infinity)});
    auto found =
        std::ranges::find_if(known, [&](const Breaking& each) { return each.serves(width); });
    if (found == known.end()) {
      if (known.size() >= mostBreakings) known.erase(known.begin() + 1);
      known.push_back({width, breakLines(text, width)});
      found = std::prev(known.end());
    }
    return found->lines;
  }

  /// The least width of `text`, which `measure(text)` finds if it is not cached.
  template <class Measure>
  double leastWidth(const AttributedText& text, Measure measure) {
    auto& known = entryOf(text).leastWidth;
    if (!known) known = measure(text);
    return *known;
  }

  void clear() { entries_.clear(); }

 private:
  // Enough for all rows on a tall screen; some 2 KB each.
  static constexpr std::size_t mostTexts = 256;
  // Layout asks at the least width, at the offered one and without one.
  static constexpr std::size_t mostBreakings = 4;

  struct Breaking {
    double width = 0;
    Lines lines;

    /// Lines are filled greedily, so they stay the same at less width while the widest still fits.
    bool serves(double wanted) const {
      return wanted == width || (wanted < width && wanted >= lines.metrics.size.width);
    }
  };
  struct Entry {
    AttributedText text;
    std::vector<Breaking> breakings;  ///< the first one is to infinite width
    std::optional<double> leastWidth;
  };

  Entry& entryOf(const AttributedText& text) {
    const std::size_t hash = text.shapeHash();
    Entry* const known =
        entries_.find(hash, [&](const Entry& each) { return each.text.isShapedAs(text); });
    if (known) return *known;
    Entry& added = entries_.add(hash);
    added.text = text;
    added.breakings.clear();
    added.leastWidth.reset();
    return added;
  }

  foundation::RecentEntries<Entry> entries_{mostTexts};
};

}  // namespace quorix::text
