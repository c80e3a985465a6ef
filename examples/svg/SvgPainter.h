#pragma once

#include <string>

#include "OutlineTextEngine.h"
#include "platform/render/Scene.h"

namespace quorix::examples {

/// Writes a display list as an SVG file, with texts as outlines.
class SvgPainter {
 public:
  /// `engine` must be the one that measured the texts.
  explicit SvgPainter(OutlineTextEngine& engine) : engine_(engine) {}

  /// Paints on the background `ground`. The title is the text for screen readers.
  std::string paint(const render::Scene& scene, graphics::RGBA ground);

 private:
  void draw(const render::TextItem& item);
  void draw(const render::ImageItem& item);
  void draw(const render::FillItem& item);
  void draw(const render::StrokeItem& item);
  void draw(const render::ClipItem& item);
  void draw(const render::EmbedItem& item);
  void drawLine(const Paragraph::Line& line, const text::AttributedText& text, double left,
                double baseline);

  OutlineTextEngine& engine_;
  graphics::Appearance appearance_ = graphics::Appearance::light;
  std::string svg_;
  std::string unclip_;  ///< closes the clip elements
};

}  // namespace quorix::examples
