#pragma once

#include "Faces.h"
#include "Paragraph.h"
#include "platform/text/TextEngine.h"

namespace quorix::examples {

/// The port between the library's layout and this renderer's fonts.
class OutlineTextEngine final : public text::TextEngine {
 public:
  text::TextMetrics measure(const text::AttributedText& text, double width) override;
  double leastWidth(const text::AttributedText& text) override;

  /// What `measure` measured, to be drawn.
  struct Block {
    text::TextMetrics metrics;
    std::vector<Paragraph::Line> lines;
    double ascent = 0;      ///< of the first line, from the top
    double lineHeight = 0;  ///< from one baseline to the next
  };
  Block lay(const text::AttributedText& text, double width);

 private:
  Faces faces_;
};

}  // namespace quorix::examples
