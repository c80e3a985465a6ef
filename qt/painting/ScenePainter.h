#pragma once

#include <QPainter>
#include <QRect>
#include <QTransform>
#include <algorithm>
#include <optional>
#include <vector>

#include "platform/graphics/RGBA.h"
#include "platform/render/Scene.h"
#include "qt/text/QtTextEngine.h"

namespace quorix::qt {

/// What lies under the next item of a scene, item being painted over item on a surface that was
/// empty. Rects are in device pixels.
class KnownGround {
 public:
  /// The one color that all of `pixels` have: opaque, or transparent where nothing was painted.
  /// Absent where that is not known.
  std::optional<graphics::RGBA> under(const QRect& pixels) const {
    const auto top = std::find_if(layers_.rbegin(), layers_.rend(), [&](const Layer& layer) {
      return layer.pixels.intersects(pixels);
    });
    if (top == layers_.rend()) return graphics::RGBA{0, 0, 0, 0};
    return top->pixels.contains(pixels) ? top->color : std::nullopt;
  }

  /// Every one of `pixels` has `color` now, if that is opaque.
  void filled(const QRect& pixels, graphics::RGBA color) {
    if (color.alpha != 255) return painted(pixels);
    layers_.push_back({pixels, color});
  }

  /// Some of `pixels` were painted, no others.
  void painted(const QRect& pixels) { layers_.push_back({pixels, std::nullopt}); }

  /// A text was painted, its ink in `pixels`. Text on an empty ground leaves it empty: texts stand
  /// beside each other and a picture is blended there, so overlapping ink is harmless.
  void inked(const QRect& pixels) {
    const auto ground = under(pixels);
    if (!ground || ground->alpha != 0) painted(pixels);
  }

 private:
  struct Layer {
    QRect pixels;
    std::optional<graphics::RGBA> color;  ///< absent: of more than one, or not known
  };

  std::vector<Layer> layers_;  ///< the last on top
};

/// Draws scenes with a painter on any device, a point of the scene on a unit of the painter. Where
/// the painter does not turn or shear, baselines, decorations and edges are put on whole device
/// pixels. Main thread.
///
///     QPainter painter(&image);
///     painter.scale(2, 2);
///     ScenePainter(painter).paint(host.scene(size));
class ScenePainter {
 public:
  explicit ScenePainter(QPainter& painter, QtTextEngine& engine = QtTextEngine::shared());
  /// On an empty image in premultiplied ARGB, a point on as many pixels as its ratio says. A text
  /// that was painted before on the same ground, nothing or one opaque color, is painted from its
  /// picture, with the same pixels; over other things text is blended by their brightness.
  explicit ScenePainter(QImage& empty, QtTextEngine& engine = QtTextEngine::shared());

  /// Paints every item in order and leaves the given painter as it was, but for its pen.
  void paint(const render::Scene& scene);

 private:
  void draw(const render::TextItem& item);
  void draw(const render::ImageItem& item);
  void draw(const render::FillItem& item);
  void draw(const render::StrokeItem& item);
  void draw(const render::ClipItem& item);
  void draw(const render::EmbedItem& item) {
    draw(render::FillItem{item.frame, item.background, item.topCornerRadius});
  }

  void drawText(const render::TextItem& item);
  bool drawPicture(const render::TextItem& item);
  bool copyPicture(const QImage& picture, const QRect& to, graphics::RGBA ground);
  bool isClear(const QRect& pixels) const;
  bool copyGlyphs(const QGlyphRun& glyphs, double unit, graphics::RGBA color, QPointF origin);
  InkPicture pictureOf(const render::TextItem& item, graphics::RGBA ground) const;
  void drawLine(const ShapedText::Line& line, double unit, const text::AttributedText& text,
                QPointF origin);
  void drawDecoration(const ShapedText::Span& span, QPointF origin, ShapingFont::Stroke stroke,
                      const text::Run& run);
  void fill(const QRectF& device, graphics::RGBA color);
  QPointF onPixels(QPointF point) const;
  QRectF deviceRect(const layout::Rect& frame) const;

  QPainter& painter();

  QPainter* painter_ = nullptr;
  QImage* image_ = nullptr;      ///< to make a painter for when something needs one
  std::optional<QPainter> own_;  ///< that painter
  QRect copied_;                 ///< holds all that was painted without one
  struct Copy {
    const QImage* picture;
    QRect to;
  };
  std::vector<Copy> copies_;  ///< of one run, to be made when all of it is known
  QtTextEngine& engine_;
  const QTransform base_;
  const QTransform toDevice_;
  const QTransform fromDevice_;
  const bool upright_;
  std::optional<KnownGround> ground_;
  graphics::Appearance appearance_ = graphics::Appearance::light;
  int clips_ = 0;  ///< begun by the scene's own items
};

}  // namespace quorix::qt
