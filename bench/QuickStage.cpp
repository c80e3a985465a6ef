#include "bench/QuickStage.h"

#include <QQuickItem>
#include <QQuickRenderTarget>

namespace quorix::bench {

QuickStage::QuickStage(QSize size) : image_(size, QImage::Format_ARGB32_Premultiplied) {
  window_.setColor(Qt::white);
  window_.setGeometry(QRect(QPoint(), size));
  window_.contentItem()->setSize(size);
  window_.setRenderTarget(QQuickRenderTarget::fromPaintDevice(&image_));
  window_.show();
}

QuickStage::~QuickStage() = default;

void QuickStage::frame() {
  control_.polishItems();
  control_.beginFrame();
  control_.sync();
  control_.render();
  control_.endFrame();
}

}  // namespace quorix::bench
