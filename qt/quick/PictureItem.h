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

/// Shows a picture in the scene graph, pixel by pixel of the window. It is a transform node because
/// the software renderer places a new node only by a parent of that kind. Render thread, during
/// synchronization.
class PictureNode : public QSGTransformNode {
 public:
  /// Uploads `image`; a null image removes the texture.
  void setPicture(QQuickWindow& window, const QImage& image);
  /// Where the picture's top left is, in the item's coordinates.
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
  /// `lost` has to set the picture again: the scene graph was made anew while the window was
  /// hidden.
  PictureItem(QQuickItem& parent, std::function<void()> lost);
  void setPicture(const QImage& picture);
  /// Does not draw the uppermost `points` of the picture.
  void hideTop(double points);

 protected:
  QSGNode* updatePaintNode(QSGNode* old, UpdatePaintNodeData* data) override;

 private:
  std::function<void()> lost_;
  std::optional<QImage> picture_;  ///< until the scene graph takes it
  bool isEmpty_ = true;
  double hidden_ = 0;
};

}  // namespace quorix::qt
