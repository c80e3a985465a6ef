#pragma once

#include <QColor>
#include <QRectF>
#include <QSGNode>

class QQuickWindow;
class QSGRectangleNode;

namespace quorix::qt {

class PictureNode;

/// A sheet in the scene graph: the shade, the panel's picture, and its color on to the window's
/// bottom. Motion moves these and paints nothing. Render thread.
class SheetNode : public QSGTransformNode {
 public:
  explicit SheetNode(QQuickWindow& window);

  PictureNode& panel() { return *panel_; }

  void setShade(const QRectF& window, const QColor& color);
  void setBelow(const QRectF& rect, const QColor& color);

 private:
  QSGRectangleNode* shade_;
  QSGRectangleNode* below_;
  PictureNode* panel_;
};

}  // namespace quorix::qt
