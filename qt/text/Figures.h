#pragma once

#include <QRawFont>
#include <optional>
#include <string>
#include <vector>

#include "platform/text/AttributedText.h"
#include "platform/text/PriceGlyphs.h"
#include "qt/text/Paragraph.h"
#include "qt/text/QtFonts.h"

namespace quorix::qt {

/// Sets prices on one line without shaping each, in the faces that can (`text::PriceGlyphs`). Main
/// thread.
class Figures {
 public:
  /// What `Paragraph` makes of `text` at infinite width. Absent if `text` is not a price, or its
  /// face was not learned.
  std::optional<ShapedText> shape(const text::AttributedText& text, QtFonts& fonts);

  void clear() { faces_.clear(); }

 private:
  struct Face {
    std::string name;
    swiftui::FontWeight weight;
    text::PriceGlyphs glyphs{};  ///< in pixels of the shaping font
    bool isLearned = false;
    QRawFont font{};
    double baseline = 0;  ///< pixels of the shaping font
    double height = 0;    ///< likewise
  };

  Face& face(const text::ResolvedFont& font);
  static bool learn(Face& face, QtFonts& fonts);

  std::vector<Face> faces_;
};

}  // namespace quorix::qt
