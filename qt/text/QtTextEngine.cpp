#include "qt/text/QtTextEngine.h"

#include <algorithm>
#include <utility>

#include "qt/ApplicationLifetime.h"

namespace quorix::qt {

QtTextEngine& QtTextEngine::shared() { return applicationLifetime<QtTextEngine>(); }

text::TextMetrics QtTextEngine::measure(const text::AttributedText& text, double width) {
  return shape(text, width).metrics;
}

double QtTextEngine::leastWidth(const text::AttributedText& text) {
  if (fonts_.refresh()) clear();
  return lines_.leastWidth(text, [this](const text::AttributedText& unknown) {
    return Paragraph(unknown, fonts_).leastWidth();
  });
}

const ShapedText& QtTextEngine::shape(const text::AttributedText& text, double width) {
  if (fonts_.refresh()) clear();
  const auto breakLines = [this](const text::AttributedText& unknown, double points) {
    if (points == layout::infinity) {
      if (auto figures = figures_.shape(unknown, fonts_)) return *std::move(figures);
    }
    ++breaks_;
    return Paragraph(unknown, fonts_).breakLines(points);
  };
  return lines_.lines(text, std::max(width, 0.0), breakLines);
}

TextPictures& QtTextEngine::pictures() {
  if (fonts_.refresh()) clear();
  return pictures_;
}

void QtTextEngine::clear() {
  lines_.clear();
  pictures_.clear();
  figures_.clear();
}

}  // namespace quorix::qt
