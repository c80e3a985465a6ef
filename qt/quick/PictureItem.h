#pragma once

#include <QImage>
#include <QPointF>
#include <QQuickItem>
#include <functional>
#include <utility>

#include "platform/hosting/RingPicture.h"
#include "qt/Conversions.h"
#include "qt/Picture.h"

class QSGNode;

namespace quorix::qt {

/// The picture of an item, for the scene graph to show pixel by pixel of the window. Main thread,
/// except `show`.
class NodePicture {
 public:
  /// A null picture frees the former one. Update the item after this.
  void set(const QImage& picture);
  bool isNull() const { return isNull_; }
  /// Makes or changes the node of `item`: the picture's top left is at `origin`. If the scene graph
  /// was made anew while the window was hidden, calls `lost` on a later turn, which has to set the
  /// picture again. Render thread, during synchronization.
  QSGNode* show(QSGNode* old, QQuickItem& item, QPointF origin, const std::function<void()>& lost);

 private:
  QImage picture_;  ///< until the scene graph takes it
  bool isNull_ = true;
};

/// Shows a picture at its place and takes no input. Main thread.
class PictureItem : public QQuickItem, public hosting::ScenePicture {
 public:
  /// For `lost` see `NodePicture::show`.
  PictureItem(QQuickItem& parent, std::function<void()> lost)
      : QQuickItem(&parent), lost_(std::move(lost)) {
    setFlag(ItemHasContents);
  }
  void show(const render::Scene& scene, double scale) override {
    picture_.set(paintPicture(scene, scale, {0, 0, 0, 0}));
    update();
  }
  void moveTo(layout::Point corner) override { setPosition(toPoint(corner)); }

 protected:
  QSGNode* updatePaintNode(QSGNode* old, UpdatePaintNodeData*) override {
    return picture_.show(old, *this, {}, lost_);
  }

 private:
  std::function<void()> lost_;
  NodePicture picture_;
};

}  // namespace quorix::qt
