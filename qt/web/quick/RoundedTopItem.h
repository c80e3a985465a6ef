#pragma once

#include <QPointer>
#include <QQuickItem>

namespace quorix::qt {

/// Shows a picture with rounded upper corners and smooth edges. Needs a GPU's renderer, but no
/// shader of its own: pixels at the curve are drawn with less opacity. Main thread.
class RoundedTopItem : public QQuickItem {
  Q_OBJECT
  /// Provides the picture, which has this item's size.
  Q_PROPERTY(QQuickItem* source MEMBER source_ NOTIFY changed)
  /// Of the corners, in points.
  Q_PROPERTY(double radius MEMBER radius_ NOTIFY changed)
  /// Device pixels for each point.
  Q_PROPERTY(double pixelRatio MEMBER pixelRatio_ NOTIFY changed)

 public:
  RoundedTopItem();

 signals:
  void changed();

 protected:
  QSGNode* updatePaintNode(QSGNode* old, UpdatePaintNodeData* data) override;

 private:
  QPointer<QQuickItem> source_;
  double radius_ = 0;
  double pixelRatio_ = 1;
};

}  // namespace quorix::qt
