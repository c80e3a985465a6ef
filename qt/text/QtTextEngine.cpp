#include "qt/text/QtTextEngine.h"

#include <algorithm>
#include <utility>

#include "qt/ApplicationLifetime.h"

namespace quorix::qt {

QtTextEngine& QtTextEngine::shared() { return applicationLifetime<QtTextEngine>(); }

text::TextMetrics QtTextEngine::measure(const text::AttributedText& text, double width) {
  // Texts of width 0 are not painted: layout only asks how small the text can get.
  return find(text, width, width > 0).metrics;
}

double QtTextEngine::leastWidth(const text::AttributedText& text) {
  if (fonts_.refresh()) clear();
  return lines_.leastWidth(text, [this](const text::AttributedText& unknown) {
    paragraph_.set(unknown, fonts_);
    return paragraph_.leastWidth();
  });
}

const ShapedText& QtTextEngine::shape(const text::AttributedText& text, double width) {
  return find(text, width, true);
}

TextPictures& QtTextEngine::pictures() {
  if (fonts_.refresh()) clear();
  return pictures_;
}

const ShapedText& QtTextEngine::find(const text::AttributedText& text, double width, bool toPaint) {
  if (fonts_.refresh()) clear();
  const auto make = [this](const text::AttributedText& unknown, double points, bool glyphs) {
    return breakLines(unknown, points, glyphs);
  };
  return lines_.lines(text, std::max(width, 0.0), toPaint, make);
}

ShapedText QtTextEngine::breakLines(const text::AttributedText& text, double width, bool glyphs) {
  if (width == layout::infinity) {
    if (auto figures = figures_.shape(text, fonts_)) return *std::move(figures);
  }
  paragraph_.set(text, fonts_);
  ++breaks_;
  return paragraph_.breakLines(width, glyphs);
}

void QtTextEngine::clear() {
  lines_.clear();
  pictures_.clear();
  glyphs_.clear();
  figures_.clear();
  paragraph_.clear();
}

}  // namespace quorix::qt
