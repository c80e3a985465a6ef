#pragma once

#include "platform/foundation/Export.h"
#include "platform/render/KnownGround.h"
#include "platform/render/TextPictures.h"
#include "platform/text/LineCache.h"
#include "platform/text/PriceGlyphs.h"
#include "platform/text/TextEngine.h"
#include "qt/text/Paragraph.h"
#include "qt/text/QtFonts.h"

namespace quorix::qt {

/// Shapes texts with Qt and its fallback faces. Caches what it measures, so that painting does not
/// shape again. Main thread; needs an application object.
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

  /// Pictures of texts. Drops them first if fonts were added or removed.
  render::TextPictures<render::InkPicture>& pictures();

  /// How often text has been broken into lines so far. For tests.
  int breaks() const { return breaks_; }

 private:
  void clear();

  QtFonts& fonts_ = QtFonts::shared();
  text::LineCache<ShapedText> lines_;
  render::TextPictures<render::InkPicture> pictures_;
  text::PriceFaces<QGlyphRun> prices_{ShapingFont::pixels};
  int breaks_ = 0;
};

}  // namespace quorix::qt
