#pragma once

#include <QImage>
#include <QQuickRenderControl>
#include <QQuickWindow>

namespace quorix::bench {

/// A Qt Quick window whose frames land in an image, on the software scene graph, at once and with
/// no window system between.
class QuickStage {
 public:
  explicit QuickStage(QSize size);
  ~QuickStage();

  QQuickItem* root() { return window_.contentItem(); }
  QQuickWindow& window() { return window_; }
  /// The latest frame.
  const QImage& image() const { return image_; }

  /// Makes the next frame.
  void frame();

 private:
  QQuickRenderControl control_;
  QQuickWindow window_{&control_};
  QImage image_;
};

}  // namespace quorix::bench
