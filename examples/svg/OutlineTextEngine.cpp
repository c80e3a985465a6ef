#include "OutlineTextEngine.h"

#include <hb.h>
#include <unicode/uchar.h>
#include <algorithm>
#include <cmath>

#include "platform/text/TextAnalysis.h"

namespace quorix::examples {
namespace {

struct DestroyBuffer {
  void operator()(hb_buffer_t* buffer) const { hb_buffer_destroy(buffer); }
};

bool endsParagraph(char16_t last) {
  return last == u'\n' || last == u'\r' || last == u'\u2028' || last == u'\u2029';
}

}  // namespace

Paragraph::Paragraph(const text::AttributedText& text, Faces& faces) : bidi_(ubidi_open()) {
  for (const text::Run& run : text.runs) {
    text_ += icu::UnicodeString::fromUTF8(run.text);
    runs_.push_back({text_.length(), &faces.find(run.font.name), run.font.points});
  }
  UErrorCode status = U_ZERO_ERROR;
  const bool rightToLeft = text::baseDirection(text) == layout::LayoutDirection::rightToLeft;
  const UBiDiLevel base = rightToLeft ? 1 : 0;
  ubidi_setPara(bidi_.get(), text_.getBuffer(), text_.length(), base, nullptr, &status);
  words_.reset(icu::BreakIterator::createLineInstance(icu::Locale::getRoot(), status));
  characters_.reset(icu::BreakIterator::createCharacterInstance(icu::Locale::getRoot(), status));
  words_->setText(text_);
  characters_->setText(text_);
}

std::vector<Paragraph::Line> Paragraph::lines(double width) {
  std::vector<Line> lines;
  for (std::int32_t from = 0; from < text_.length();) {
    const std::int32_t end = lineEnd(from, width);
    lines.push_back(shape(from, end));
    from = end;
  }
  if (lines.empty()) lines.emplace_back();
  return lines;
}

double Paragraph::longestWord() {
  double longest = 0;
  std::int32_t from = 0;
  for (std::int32_t next = words_->following(0); next != icu::BreakIterator::DONE;
       next = words_->next()) {
    longest = std::max(longest, shape(from, next).width);
    from = next;
  }
  return longest;
}

std::int32_t Paragraph::lineEnd(std::int32_t from, double width) {
  const std::int32_t end = lastThatFits(*words_, from, width);
  if (end > from) return end;
  return std::max(lastThatFits(*characters_, from, width), characters_->following(from));
}

/// The last of `places` up to which the text from `from` fits into `width`; `from` if none fits.
std::int32_t Paragraph::lastThatFits(icu::BreakIterator& places, std::int32_t from,
                                     double width) const {
  constexpr double slack = 1.0 / 256;  // frames lose the last bits of a measured width
  std::int32_t end = from;
  for (std::int32_t next = places.following(from); next != icu::BreakIterator::DONE;
       next = places.next()) {
    if (shape(from, next).width > width + slack) break;
    end = next;
    if (endsParagraph(text_[next - 1])) break;
  }
  return end;
}

/// Shapes the glyphs of one line, without the blanks at its end.
Paragraph::Line Paragraph::shape(std::int32_t from, std::int32_t to) const {
  while (to > from && u_isUWhiteSpace(text_.char32At(to - 1))) --to;
  Line line;
  if (from == to) return line;
  UErrorCode status = U_ZERO_ERROR;
  const std::unique_ptr<UBiDi, CloseBidi> order(ubidi_open());
  ubidi_setLine(bidi_.get(), from, to, order.get(), &status);
  const std::int32_t count = ubidi_countRuns(order.get(), &status);
  for (std::int32_t i = 0; i < count; ++i) {
    std::int32_t start = 0, length = 0;
    const bool rightToLeft = ubidi_getVisualRun(order.get(), i, &start, &length) == UBIDI_RTL;
    shapeAlong(line, from + start, from + start + length, rightToLeft);
  }
  return line;
}

/// Shapes text of one direction, with a piece for each run.
void Paragraph::shapeAlong(Line& line, std::int32_t from, std::int32_t to, bool rightToLeft) const {
  std::vector<std::size_t> order;
  for (std::size_t run = 0; run < runs_.size(); ++run) {
    const std::int32_t start = run == 0 ? 0 : runs_[run - 1].end;
    if (start < to && runs_[run].end > from) order.push_back(run);
  }
  if (rightToLeft) std::ranges::reverse(order);
  for (const std::size_t run : order) {
    const std::int32_t start = run == 0 ? 0 : runs_[run - 1].end;
    shapePiece(line, run, std::max(from, start), std::min(to, runs_[run].end), rightToLeft);
  }
}

void Paragraph::shapePiece(Line& line, std::size_t run, std::int32_t from, std::int32_t to,
                           bool rightToLeft) const {
  const std::unique_ptr<hb_buffer_t, DestroyBuffer> buffer(hb_buffer_create());
  const auto* characters = reinterpret_cast<const std::uint16_t*>(text_.getBuffer());
  hb_buffer_add_utf16(buffer.get(), characters, text_.length(), static_cast<unsigned>(from),
                      to - from);
  hb_buffer_set_direction(buffer.get(), rightToLeft ? HB_DIRECTION_RTL : HB_DIRECTION_LTR);
  hb_buffer_guess_segment_properties(buffer.get());
  const Stretch& stretch = runs_[run];
  hb_shape(stretch.face->shaper(), buffer.get(), nullptr, 0);

  const double unit = stretch.points * stretch.face->unit();
  Piece piece{run, stretch.face, line.width, line.width, {}};
  const unsigned count = hb_buffer_get_length(buffer.get());
  const auto* glyphs = hb_buffer_get_glyph_infos(buffer.get(), nullptr);
  const auto* positions = hb_buffer_get_glyph_positions(buffer.get(), nullptr);
  for (unsigned i = 0; i < count; ++i) {
    piece.glyphs.push_back({glyphs[i].codepoint, piece.right + positions[i].x_offset * unit,
                            -positions[i].y_offset * unit});
    piece.right += positions[i].x_advance * unit;
  }
  line.width = piece.right;
  line.pieces.push_back(std::move(piece));
}

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

  for (const auto& line : block.lines) {
    block.metrics.size.width = std::max(block.metrics.size.width, line.width);
  }
  block.metrics.size.height = static_cast<double>(block.lines.size()) * block.lineHeight;
  return block;
}

}  // namespace quorix::examples
