#include "platform/hosting/RingPicture.h"

#include "platform/hosting/FocusRing.h"

namespace quorix::hosting {

void RingPicture::follow(const std::optional<layout::Rect>& element, layout::Point corner,
                         graphics::Appearance appearance, double scale, const Make& make) {
  if (!element) return drop();
  const Painted now{*element, appearance, scale};
  const layout::Rect frame = FocusRing::around(*element);
  if (!picture_) picture_ = make();
  if (painted_ != now) {
    render::Scene scene;
    scene.size = frame.size;
    scene.items = {FocusRing::line({{}, frame.size}, appearance)};
    picture_->show(scene, scale);
    painted_ = now;
  }
  picture_->moveTo(frame.translated(corner).origin);
}

void RingPicture::drop() {
  picture_.reset();
  painted_.reset();
}

}  // namespace quorix::hosting
