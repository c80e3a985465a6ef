#include "qt/quick/SheetNode.h"

#include <QQuickWindow>
#include <QSGRectangleNode>

#include "qt/quick/PictureItem.h"

namespace quorix::qt {

SheetNode::SheetNode(QQuickWindow& window)
    : shade_(window.createRectangleNode()),
      below_(window.createRectangleNode()),
      panel_(new PictureNode) {
  appendChildNode(shade_);
  appendChildNode(below_);
  appendChildNode(panel_);
}

void SheetNode::setShade(const QRectF& window, const QColor& color) {
  shade_->setRect(window);
  shade_->setColor(color);
}

void SheetNode::setBelow(const QRectF& rect, const QColor& color) {
  below_->setRect(rect);
  below_->setColor(color);
}

}  // namespace quorix::qt
