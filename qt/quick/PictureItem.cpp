#include "qt/quick/PictureItem.h"

#include <QQuickWindow>
#include <QSGImageNode>
#include <QSGTexture>
#include <utility>

namespace quorix::qt {

void NodePicture::set(const QImage& picture) {
  picture_ = picture;
  isNull_ = picture.isNull();
}

QSGNode* NodePicture::show(QSGNode* old, QQuickItem& item, QPointF origin,
                           const std::function<void()>& lost) {
  if (isNull_ || (!old && picture_.isNull())) {
    if (!isNull_) QMetaObject::invokeMethod(&item, lost, Qt::QueuedConnection);
    delete old;
    return nullptr;
  }
  // The software renderer places a new node only by a parent of this kind.
  auto* place = old ? static_cast<QSGTransformNode*>(old) : new QSGTransformNode;
  QMatrix4x4 matrix;
  matrix.translate(static_cast<float>(origin.x()), static_cast<float>(origin.y()));
  if (matrix != place->matrix()) place->setMatrix(matrix);
  if (picture_.isNull()) return place;
  const QImage picture = std::exchange(picture_, {});
  auto* image = static_cast<QSGImageNode*>(place->firstChild());
  if (!image) {
    image = item.window()->createImageNode();
    image->setOwnsTexture(true);
    // Pixels of the picture are pixels of the window: interpolating would blur them.
    image->setFiltering(QSGTexture::Nearest);
  }
  QSGTexture* texture =
      item.window()->createTextureFromImage(picture, QQuickWindow::TextureCanUseAtlas);
  image->setTexture(texture);
  image->setSourceRect(QRectF(QPointF(), texture->textureSize()));
  image->setRect(QRectF(QPointF(), picture.deviceIndependentSize()));
  // Last: the software renderer reads the texture as soon as the node is in the graph.
  if (!old) place->appendChildNode(image);
  return place;
}

}  // namespace quorix::qt
