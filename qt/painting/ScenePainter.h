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

/// Records what the items of a display list leave on an empty surface, so that it is known what
/// lies under the next one. Device pixels.
class KnownGround {
 public:
  /// The color of all `pixels`: opaque, or transparent if nothing was painted there. Absent if they
  /// differ or are not known.
  std::optional<graphics::RGBA> under(const QRect& pixels) const {
    const auto top = std::find_if(layers_.rbegin(), layers_.rend(), [&](const Layer& layer) {
      return layer.pixels.intersects(pixels);
    });
    if (top == layers_.rend()) return graphics::RGBA{0, 0, 0, 0};
    return top->pixels.contains(pixels) ? top->color : std::nullopt;
  }

  /// All `pixels` were filled with `color`.
  void filled(const QRect& pixels, graphics::RGBA color) {
    if (color.alpha != 255) return painted(pixels);
    layers_.push_back({pixels, color});
  }

  /// Something was painted within `pixels`.
  void painted(const QRect& pixels) { layers_.push_back({pixels, std::nullopt}); }

  /// A text was painted, its ink within `pixels`. An empty ground still counts as empty: there the
  /// pictures of texts are blended, so overlapping ink is harmless.
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

/// Draws display lists, each point on a unit of the painter. If the painter does not rotate or
/// shear, baselines, decorations and edges are moved to whole device pixels. Main thread.
///
///     QPainter painter(&image);
///     painter.scale(2, 2);
///     ScenePainter(painter).paint(host.scene(size));
class ScenePainter {
 public:
  QUORIX_EXPORT explicit ScenePainter(QPainter& painter,
                                      QtTextEngine& engine = QtTextEngine::shared());
  /// Draws on an empty image in premultiplied ARGB, at its device pixel ratio. A text that was
  /// painted before on the same ground (empty, or of one opaque color) is painted from its picture,
  /// with the same pixels. On any other ground Qt blends text by the brightness.
  explicit ScenePainter(QImage& empty, QtTextEngine& engine = QtTextEngine::shared());

  /// Paints the items in order. Changes nothing of the given painter but its pen.
  QUORIX_EXPORT void paint(const render::Scene& scene);

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
  QImage* image_ = nullptr;      ///< for `own_`
  std::optional<QPainter> own_;  ///< begun when an item needs a painter
  QRect copied_;                 ///< around all that was painted without a painter
  QtTextEngine& engine_;
  const QTransform base_;
  const QTransform toDevice_;
  const QTransform fromDevice_;
  const bool upright_;
  std::optional<KnownGround> ground_;
  graphics::Appearance appearance_ = graphics::Appearance::light;
  int clips_ = 0;  ///< begun by clip items
};

}  // namespace quorix::qt
