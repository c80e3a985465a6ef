#pragma once

#include <algorithm>
#include <cmath>

#include "platform/text/TextEngine.h"

namespace quorix::testing {

/// A text engine with results that can be calculated by hand: each character is half its font size
/// wide, each line 1.25 times its font size high, by the first run. Records the requests.
class FixedWidthText final : public text::TextEngine {
 public:
  struct Call {
    std::string words;
    double width;
    auto operator<=>(const Call&) const = default;
  };
  std::vector<Call> calls;

  text::TextMetrics measure(const text::AttributedText& text, double width) override {
    calls.push_back({joined(text), width});
    const double advance = text.runs.front().font.points / 2;
    const double lineHeight = text.runs.front().font.points * 1.25;
    Lines lines{std::max(1.0, std::floor(width / advance + 1e-9))};
    for (const double word : words(text)) lines.add(word);
    return {{lines.widest * advance, lines.count * lineHeight}};
  }

  double leastWidth(const text::AttributedText& text) override {
    return std::ranges::max(words(text)) * text.runs.front().font.points / 2;
  }

 private:
  struct Lines {
    double capacity;
    double used = 0;
    double widest = 0;
    int count = 1;

    void add(double word) {
      if (used > 0 && used + 1 + word > capacity) next();
      if (used > 0) ++used;
      for (; word > capacity; word -= capacity) {
        widest = capacity;
        next();
      }
      used += word;
      widest = std::max(widest, used);
    }
    void next() { ++count, used = 0; }
  };

  static std::string joined(const text::AttributedText& text) {
    std::string all;
    for (const text::Run& part : text.runs) all += part.text;
    return all;
  }
  /// The number of characters in each word. Has at least one entry.
  static std::vector<double> words(const text::AttributedText& text) {
    std::vector<double> counts(1);
    for (const char c : joined(text)) {
      if (c == ' ')
        counts.push_back(0);
      else if ((c & 0xC0) != 0x80)
        ++counts.back();
    }
    return counts;
  }
};

}  // namespace quorix::testing
