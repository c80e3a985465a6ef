#include "qt/quick/SheetLayers.h"

#include "qt/Picture.h"
#include "qt/quick/SheetItem.h"

namespace quorix::qt {
namespace {

constexpr double kFront = 1000;
constexpr double kRing = 1001;

}  // namespace

void SheetLayers::setPictures(const std::vector<hosting::SceneLayer>& layers, double scale) {
  while (layers_.size() + 1 > layers.size()) {
    delete layers_.back().item;
    layers_.pop_back();
  }
  for (std::size_t i = 1; i < layers.size(); ++i) {
    if (layers_.size() < i) layers_.push_back({new PictureItem(sheet_), {}});
    Layer& layer = layers_[i - 1];
    layer.item->setZ(double(2 * i));
    layer.origin = {layers[i].origin.x, layers[i].origin.y};
    layer.item->setPicture(paintPicture(layers[i].scene, scale, {0, 0, 0, 0}));
  }
  moveTo(panel_);
}

void SheetLayers::moveTo(QPointF panel) {
  panel_ = panel;
  for (const Layer& layer : layers_) layer.item->setPosition(panel + layer.origin);
}

void SheetLayers::makeStops() {
  if (front_) return;
  front_ = new SheetFront(sheet_);
  front_->setZ(kFront);
  before_ = new FocusStop(sheet_, [this] { sheet_.leftPages(false); });
  after_ = new FocusStop(sheet_, [this] { sheet_.leftPages(true); });
}

void SheetLayers::place(QQuickItem& page, const QRectF& frame, int index) {
  makeStops();
  front_->setSize(sheet_.size());
  const auto chain = sheet_.childItems();
  if (chain.constFirst() != before_) before_->stackBefore(chain.constFirst());
  if (chain.constLast() != after_) after_->stackAfter(chain.constLast());
  page.setZ(2 * index + 1);
  page.setPosition(frame.topLeft());
  page.setSize(frame.size());
}

void SheetLayers::showRing(QPointF origin, const QImage& picture) {
  if (!ring_) {
    ring_ = new PictureItem(sheet_);
    ring_->setZ(kRing);
  }
  if (!picture.isNull()) ring_->setPicture(picture);
  ring_->setPosition(origin);
  ring_->setVisible(true);
}

void SheetLayers::hideRing() {
  if (ring_) ring_->setVisible(false);
}

}  // namespace quorix::qt
