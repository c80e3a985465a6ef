#include "qt/quick/PictureItem.h"

#include <QQuickWindow>
#include <QSGImageNode>
#include <QSGTexture>
#include <utility>

namespace quorix::qt {

void PictureNode::setPicture(QQuickWindow& window, const QImage& image) {
  if (image.isNull()) {
    delete image_;  // removes it from its parent, and deletes its texture
    image_ = nullptr;
    return;
  }
  const bool isNew = !image_;
  if (isNew) {
    image_ = window.createImageNode();
    image_->setOwnsTexture(true);
    // Pixels of the picture are pixels of the window: interpolating would blur them.
    image_->setFiltering(QSGTexture::Nearest);
  }
  QSGTexture* texture = window.createTextureFromImage(image, QQuickWindow::TextureCanUseAtlas);
  image_->setTexture(texture);
  size_ = image.deviceIndependentSize();
  layOut();
  // Last: the software renderer reads the texture as soon as the node is in the graph. First among
  // the children, to be below the others.
  if (isNew) prependChildNode(image_);
}

void PictureNode::hideTop(double points) {
  if (std::exchange(hidden_, points) != points && image_) layOut();
}

void PictureNode::layOut() {
  const QSizeF texture = image_->texture()->textureSize();
  const double pixels = hidden_ * texture.height() / size_.height();
  image_->setSourceRect(QRectF(QPointF(), texture).adjusted(0, pixels, 0, 0));
  image_->setRect(QRectF(QPointF(), size_).adjusted(0, hidden_, 0, 0));
}

void PictureNode::setOrigin(QPointF origin) {
  QMatrix4x4 moved;
  moved.translate(static_cast<float>(origin.x()), static_cast<float>(origin.y()));
  if (moved != matrix()) setMatrix(moved);
}

PictureItem::PictureItem(QQuickItem& parent, std::function<void()> lost)
    : QQuickItem(&parent), lost_(std::move(lost)) {
  setFlag(ItemHasContents);
}

void PictureItem::setPicture(const QImage& picture) {
  picture_ = picture;
  isEmpty_ = picture.isNull();
  update();
}

void PictureItem::hideTop(double points) {
  if (std::exchange(hidden_, points) != points) update();
}

QSGNode* PictureItem::updatePaintNode(QSGNode* old, UpdatePaintNodeData*) {
  auto* node = static_cast<PictureNode*>(old);
  if (!node) node = new PictureNode;
  if (picture_) node->setPicture(*window(), *std::exchange(picture_, std::nullopt));
  if (!isEmpty_ && !node->hasPicture()) {
    QMetaObject::invokeMethod(this, lost_, Qt::QueuedConnection);
  }
  node->hideTop(hidden_);
  return node;
}

}  // namespace quorix::qt
