#include "qt/PictureNode.h"

#include <QQuickWindow>
#include <QSGImageNode>
#include <QSGTexture>

namespace quorix::qt {

void PictureNode::setPicture(QQuickWindow& window, const QImage& image) {
  if (image.isNull()) {
    delete image_;  // leaves its parent and takes its texture with it
    image_ = nullptr;
    return;
  }
  if (!image_) {
    image_ = window.createImageNode();
    image_->setOwnsTexture(true);
    // A pixel of the picture is a pixel of the window: interpolating could only blur it.
    image_->setFiltering(QSGTexture::Nearest);
    appendChildNode(image_);
  }
  QSGTexture* texture = window.createTextureFromImage(image, QQuickWindow::TextureCanUseAtlas);
  image_->setTexture(texture);
  image_->setSourceRect(QRectF(QPointF(), texture->textureSize()));
  image_->setRect(QRectF(image_->rect().topLeft(), image.deviceIndependentSize()));
}

void PictureNode::setOrigin(QPointF origin) {
  if (!image_ || image_->rect().topLeft() == origin) return;
  image_->setRect(QRectF(origin, image_->rect().size()));
}

}  // namespace quorix::qt
