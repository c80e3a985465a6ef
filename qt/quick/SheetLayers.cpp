#include "qt/quick/SheetLayers.h"

#include <QCursor>
#include <QQuickWindow>
#include <QSGRectangleNode>

#include "qt/Conversions.h"
#include "qt/quick/SheetItem.h"

namespace quorix::qt {

SheetNode::SheetNode(QQuickWindow& window)
    : shade_(window.createRectangleNode()), below_(window.createRectangleNode()) {
  appendChildNode(shade_);
  appendChildNode(below_);
}

void SheetNode::setShade(const QRectF& window, const QColor& color) {
  // A transparent shade is not drawn, which saves blending the whole window.
  shade_->setRect(color.alpha() > 0 ? window : QRectF());
  shade_->setColor(color);
}

void SheetNode::setBelow(const QRectF& rect, const QColor& color) {
  below_->setRect(rect);
  below_->setColor(color);
}

SheetFront::SheetFront(SheetItem& sheet) : QQuickItem(&sheet), sheet_(sheet) {
  setAcceptedMouseButtons(Qt::AllButtons);
  setAcceptTouchEvents(true);
  setAcceptHoverEvents(true);
}

bool SheetFront::contains(const QPointF& point) const {
  return strip_.contains(point) || sheet_.takesTapAt(toPoint(point));
}

bool SheetFront::event(QEvent* event) { return sheet_.handle(*event) || QQuickItem::event(event); }

void SheetFront::hoverMoveEvent(QHoverEvent* event) {
  setCursor(sheet_.cursorAt(event->position()));
}

void SheetFront::mouseUngrabEvent() { sheet_.pointerLost(); }

void SheetFront::touchUngrabEvent() { sheet_.pointerLost(); }

namespace {

constexpr double kFront = 1000;
constexpr double kRing = 1001;

}  // namespace

void SheetLayers::setPictures(const std::vector<SheetSurface::Layer>& layers) {
  for (; layers_.size() > layers.size(); layers_.pop_back()) delete layers_.back().item;
  for (std::size_t i = 0; i < layers.size(); ++i) {
    if (layers_.size() == i) layers_.push_back({newPicture(double(2 * i)), {}});
    layers_[i].origin = layers[i].origin;
    layers_[i].item->setPicture(layers[i].picture);
  }
  panelHeight_ = layers.front().picture.deviceIndependentSize().height();
  moveTo(panel_);
}

void SheetLayers::hideTop(double points) { layers_.front().item->hideTop(points); }

PictureItem* SheetLayers::newPicture(double z) {
  auto* item = new PictureItem(sheet_, [this] { sheet_.paintAgain(); });
  item->setZ(z);
  return item;
}

void SheetLayers::moveTo(QPointF panel) {
  panel_ = panel;
  for (const Layer& layer : layers_) layer.item->setPosition(panel + layer.origin);
}

void SheetLayers::makeStops() {
  if (front_) return;
  front_ = new SheetFront(sheet_);
  front_->setZ(kFront);
  before_ = new FocusStop(sheet_, [this] { sheet_.leavePages(false); });
  after_ = new FocusStop(sheet_, [this] { sheet_.leavePages(true); });
}

void SheetLayers::place(QQuickItem& page, const QRectF& frame, double strip, int index) {
  makeStops();
  front_->setSize(sheet_.size());
  if (strip > 0 || index == 0) front_->setStrip({frame.topLeft(), QSizeF(frame.width(), strip)});
  const auto chain = sheet_.childItems();
  if (chain.constFirst() != before_) before_->stackBefore(chain.constFirst());
  if (chain.constLast() != after_) after_->stackAfter(chain.constLast());
  page.setZ(2 * index + 1);
  page.setPosition(frame.topLeft());
  page.setSize(frame.size());
}

void SheetLayers::showRing(const std::optional<SheetSurface::Layer>& ring) {
  if (!ring_ && ring) ring_ = newPicture(kRing);
  if (ring_) ring_->setVisible(ring.has_value());
  if (!ring) return;
  if (!ring->picture.isNull()) ring_->setPicture(ring->picture);
  ring_->setPosition(ring->origin);
}

}  // namespace quorix::qt
