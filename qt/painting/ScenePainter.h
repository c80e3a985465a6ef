#pragma once

#include <QImage>
#include <QPainter>
#include <optional>

#include "platform/render/KnownGround.h"
#include "platform/render/Scene.h"
#include "qt/text/QtTextEngine.h"

namespace quorix::qt {

/// Draws display lists at `scale` device pixels a point. Baselines, decorations and edges are moved
/// to whole pixels. Main thread.
///
///     QPainter painter(&image);
///     ScenePainter(painter, 2).paint(host.scene(size));
class ScenePainter {
 public:
  /// Draws each device pixel on a unit of `painter`. Leaves a clip item's clip and the last pen.
  ScenePainter(QPainter& painter, double scale);
  /// Draws on an empty image in premultiplied ARGB. A text that was painted before on the same
  /// ground (empty, or of one opaque color) is painted from its picture, with the same pixels. On
  /// any other ground Qt blends text by the brightness.
  ScenePainter(QImage& empty, double scale);

  /// Paints the items in order.
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
  render::InkPicture pictureOf(const render::TextItem& item, graphics::RGBA ground) const;
  void fill(const QRectF& device, graphics::RGBA color);
  layout::Rect scaled(const layout::Rect& frame) const;
  QRectF deviceRect(const layout::Rect& frame) const;

  QPainter& painter();

  QPainter* painter_ = nullptr;
  QImage* image_ = nullptr;      ///< for `own_`
  std::optional<QPainter> own_;  ///< begun when an item needs a painter
  const double scale_;
  QtTextEngine& engine_ = QtTextEngine::shared();
  std::optional<render::KnownGround> ground_;
  graphics::Appearance appearance_ = graphics::Appearance::light;
};

}  // namespace quorix::qt
