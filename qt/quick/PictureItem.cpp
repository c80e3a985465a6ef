#include "qt/quick/PictureItem.h"

#include <utility>

#include "qt/quick/PictureNode.h"

namespace quorix::qt {

PictureItem::PictureItem(QQuickItem& parent) : QQuickItem(&parent) { setFlag(ItemHasContents); }

void PictureItem::setPicture(const QImage& picture) {
  picture_ = picture;
  fresh_ = true;
  update();
}

QSGNode* PictureItem::updatePaintNode(QSGNode* old, UpdatePaintNodeData*) {
  auto* node = static_cast<PictureNode*>(old);
  const bool isNew = !node;
  if (isNew) node = new PictureNode;
  if (std::exchange(fresh_, false) || isNew) node->setPicture(*window(), picture_);
  return node;
}

}  // namespace quorix::qt
