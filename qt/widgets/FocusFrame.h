#pragma once

#include <QFocusFrame>

#include "platform/graphics/RGBA.h"
#include "platform/layout/Geometry.h"

namespace quorix::qt {

/// The focus ring of a view widget. It reaches beyond the widget, as nothing that the widget itself
/// paints can, and goes where the widget goes. Belongs to the widget's surroundings; main thread.
class FocusFrame : public QFocusFrame {
 public:
  explicit FocusFrame(QWidget& widget);

  /// Goes around the element at `element` in the widget.
  void goAround(const layout::Rect& element, graphics::Appearance appearance);

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  layout::Rect element_;
  graphics::Appearance appearance_ = graphics::Appearance::light;
};

}  // namespace quorix::qt
