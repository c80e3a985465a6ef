#pragma once

#include <unicode/brkiter.h>
#include <unicode/ubidi.h>
#include <unicode/unistr.h>
#include <cstdint>
#include <memory>
#include <vector>

#include "Faces.h"
#include "platform/text/AttributedText.h"
#include "platform/text/TextEngine.h"

namespace quorix::examples {

/// One text, shaped by HarfBuzz and broken by ICU. Points.
class Paragraph {
 public:
  struct Glyph {
    hb_codepoint_t id;
    double x, y;  ///< from the line's left end, on its baseline; y downwards
  };
  /// Consecutive glyphs of one run.
  struct Piece {
    std::size_t run;
    const Face* face;
    double left, right;
    std::vector<Glyph> glyphs;
  };
  struct Line {
    double width = 0;
    std::vector<Piece> pieces;  ///< from left to right
  };

  Paragraph(const text::AttributedText& text, Faces& faces);

  /// Lines no wider than `width`. Breaks between words, and inside a word that is wider.
  std::vector<Line> lines(double width);

  /// The largest width between two places where a line may break.
  double longestWord();

 private:
  struct Stretch {
    std::int32_t end;  ///< in UTF-16 units
    const Face* face;
    double points;
  };

  struct CloseBidi {
    void operator()(UBiDi* bidi) const { ubidi_close(bidi); }
  };

  Line shape(std::int32_t from, std::int32_t to) const;
  void shapeAlong(Line& line, std::int32_t from, std::int32_t to, bool rightToLeft) const;
  void shapePiece(Line& line, std::size_t run, std::int32_t from, std::int32_t to,
                  bool rightToLeft) const;
  std::int32_t lineEnd(std::int32_t from, double width);
  std::int32_t lastThatFits(icu::BreakIterator& places, std::int32_t from, double width) const;

  icu::UnicodeString text_;
  std::vector<Stretch> runs_;
  std::unique_ptr<UBiDi, CloseBidi> bidi_;
  std::unique_ptr<icu::BreakIterator> words_, characters_;
};

/// Connects the library's layout with this renderer's fonts.
class OutlineTextEngine final : public text::TextEngine {
 public:
  text::TextMetrics measure(const text::AttributedText& text, double width) override;
  double leastWidth(const text::AttributedText& text) override;

  /// The result of `measure`, for drawing.
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
