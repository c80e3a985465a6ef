#pragma once

#include <QImage>
#include <QPointF>
#include <QQuickItem>
#include <QSGNode>
#include <functional>
#include <optional>

class QQuickWindow;
class QSGImageNode;

namespace quorix::qt {

/// A picture in the scene graph whose pixels are the window's. Shows nothing until it is given one.
/// The software renderer takes a node's place from the nearest ancestor only when that is a
/// transform node, so pictures come and go only under such. Render thread, during synchronization.
class PictureNode : public QSGTransformNode {
 public:
  /// Uploads `image`; a null image takes the texture away.
  void setPicture(QQuickWindow& window, const QImage& image);
  /// Where its top left stands, in the item's points.
  void setOrigin(QPointF origin);
  /// Does not draw the uppermost `points` of the picture.
  void hideTop(double points);
  bool hasPicture() const { return image_ != nullptr; }

 private:
  void layOut();

  QSGImageNode* image_ = nullptr;
  QSizeF size_;
  double hidden_ = 0;
};

/// Shows a picture at its place and takes no input. Main thread.
class PictureItem : public QQuickItem {
 public:
  /// `lost` is called when the scene graph was made anew while the window was hidden: it sets the
  /// picture again.
  PictureItem(QQuickItem& parent, std::function<void()> lost);
  void setPicture(const QImage& picture);
  /// Does not draw the uppermost `points` of the picture.
  void hideTop(double points);

 protected:
  QSGNode* updatePaintNode(QSGNode* old, UpdatePaintNodeData* data) override;

 private:
  std::function<void()> lost_;
  std::optional<QImage> picture_;  ///< on its way to the scene graph
  bool isEmpty_ = true;
  double hidden_ = 0;
};

}  // namespace quorix::qt
