#pragma once

#include <cstddef>
#include <list>
#include <optional>
#include <unordered_map>
#include <vector>

#include "platform/foundation/Export.h"
#include "platform/text/TextEngine.h"
#include "qt/text/Figures.h"
#include "qt/text/Paragraph.h"
#include "qt/text/QtFonts.h"
#include "qt/text/TextPictures.h"

namespace quorix::qt {

/// Text as Qt shapes it, with Qt's fallback faces. What was measured last is kept for painting, so
/// that a text is shaped once; what rows off the screen measured long ago is let go. Main thread,
/// with an application object.
class QtTextEngine final : public text::TextEngine {
 public:
  /// The one that all surfaces measure and paint with.
  QUORIX_EXPORT static QtTextEngine& shared();

  QtTextEngine() = default;

  text::TextMetrics measure(const text::AttributedText& text, double width) override;
  double leastWidth(const text::AttributedText& text) override;

  /// The lines of `text` in a frame of `width` points. The reference holds until the next call.
  const ShapedText& shape(const text::AttributedText& text, double width);

  ShapingFont font(const text::ResolvedFont& font) { return fonts_.find(font); }

  /// The pictures of texts in the fonts that there are now.
  TextPictures& pictures();
  GlyphPictures& glyphs() { return glyphs_; }

  /// How often text has been broken into lines so far. For tests.
  int breaks() const { return breaks_; }

 private:
  /// The text broken to one width, which serves every width down to its own measure.
  struct Breaking {
    double width = 0;
    bool hasGlyphs = false;
    ShapedText text;
    bool serves(double wanted) const;
  };
  struct Entry {
    text::AttributedText text;
    std::vector<Breaking> breakings;  ///< the first is the one without a width
    std::optional<double> leastWidth;
  };

  const ShapedText& find(const text::AttributedText& text, double width, bool glyphs);
  Entry& entry(const text::AttributedText& text);
  Breaking& breaking(Entry& entry, double width, bool glyphs);
  void takeUp(const Entry& entry);
  ShapedText breakLines(const Entry& entry, double width, bool glyphs);
  void clear();

  QtFonts& fonts_ = QtFonts::shared();
  Paragraph paragraph_;
  const Entry* inParagraph_ = nullptr;
  std::list<Entry> entries_;  ///< the latest used first
  std::unordered_map<const text::AttributedText*, std::list<Entry>::iterator, TextIdentity,
                     TextIdentity>
      index_;
  TextPictures pictures_;
  GlyphPictures glyphs_;
  Figures figures_;
  int breaks_ = 0;
};

}  // namespace quorix::qt
