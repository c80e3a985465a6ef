#pragma once

#include <QImage>
#include <QPointF>
#include <QQuickItem>
#include <functional>

#include "qt/SheetSurface.h"

class QSGNode;

namespace quorix::qt {

/// The picture of an item, for the scene graph to show pixel by pixel of the window. Main thread,
/// except `show`.
class NodePicture {
 public:
  /// `lost` has to set the picture again: the scene graph was made anew while the window was
  /// hidden. It is called on a later turn.
  NodePicture(QQuickItem& item, std::function<void()> lost) : item_(item), lost_(std::move(lost)) {}

  /// A null picture frees the former one.
  void set(const QImage& picture);
  bool isNull() const { return isNull_; }
  /// Makes or changes the item's node: the picture's top left is at `origin`. Render thread, during
  /// synchronization.
  QSGNode* show(QSGNode* old, QPointF origin = {});

 private:
  QQuickItem& item_;
  std::function<void()> lost_;
  QImage picture_;  ///< until the scene graph takes it
  bool isNull_ = true;
};

/// Shows a picture at its place and takes no input. Main thread.
class PictureItem final : public QQuickItem, public SheetPicture {
 public:
  /// For `lost` see `NodePicture`.
  PictureItem(QQuickItem& parent, std::function<void()> lost)
      : QQuickItem(&parent), picture_(*this, std::move(lost)) {
    setFlag(ItemHasContents);
  }
  void setPicture(const QImage& picture) override { picture_.set(picture); }
  void moveTo(QPointF corner) override { setPosition(corner); }

 protected:
  QSGNode* updatePaintNode(QSGNode* old, UpdatePaintNodeData*) override {
    return picture_.show(old);
  }

 private:
  NodePicture picture_;
};

}  // namespace quorix::qt
