#pragma once

#include <string>

#include "OutlineTextEngine.h"
#include "platform/render/Scene.h"

namespace quorix::examples {

/// Writes a scene down as an SVG file, its texts as outlines.
class SvgPainter {
 public:
  /// `engine` measured the texts when the scene was made.
  explicit SvgPainter(OutlineTextEngine& engine) : engine_(engine) {}

  /// On `ground`, with what a screen reader would say for a title.
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
  std::string unclip_;  ///< ends what the clips began
};

}  // namespace quorix::examples
