#include "OutlineTextEngine.h"

#include <algorithm>
#include <cmath>

namespace quorix::examples {

text::TextMetrics OutlineTextEngine::measure(const text::AttributedText& text, double width) {
  return lay(text, width).metrics;
}

double OutlineTextEngine::leastWidth(const text::AttributedText& text) {
  return Paragraph(text, faces_).longestWord();
}

OutlineTextEngine::Block OutlineTextEngine::lay(const text::AttributedText& text, double width) {
  Block block;
  double descent = 0, gap = 0;
  const auto grow = [&](const text::ResolvedFont& font) {
    const Face& face = faces_.find(font.name);
    block.ascent = std::max(block.ascent, face.ascent() * font.points);
    descent = std::max(descent, face.descent() * font.points);
    gap = std::max(gap, face.lineGap() * font.points);
  };
  for (const text::Run& run : text.runs) grow(run.font);
  if (text.runs.empty()) grow({});
  block.lineHeight = block.ascent + descent + gap;
  block.lines = Paragraph(text, faces_).lines(width);

  const auto count = static_cast<double>(block.lines.size());
  block.metrics.lines = static_cast<int>(block.lines.size());
  for (const auto& line : block.lines) {
    block.metrics.size.width = std::max(block.metrics.size.width, line.width);
  }
  block.metrics.size.height = count * block.lineHeight;
  block.metrics.firstBaseline = block.ascent;
  block.metrics.lastBaseline = block.ascent + (count - 1) * block.lineHeight;
  return block;
}

}  // namespace quorix::examples
