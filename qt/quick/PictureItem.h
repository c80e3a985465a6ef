#pragma once

#include <QImage>
#include <QQuickItem>

namespace quorix::qt {

/// Shows a picture at its place and takes no input. Main thread.
class PictureItem : public QQuickItem {
 public:
  explicit PictureItem(QQuickItem& parent);
  void setPicture(const QImage& picture);

 protected:
  QSGNode* updatePaintNode(QSGNode* old, UpdatePaintNodeData* data) override;

 private:
  QImage picture_;  ///< kept: the scene graph may be made anew
  bool fresh_ = false;
};

}  // namespace quorix::qt
