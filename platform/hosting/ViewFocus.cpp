#include "platform/hosting/ViewFocus.h"

namespace quorix::hosting {

void ViewFocus::came(Cause cause) {
  switch (cause) {
    case Cause::forward:
    case Cause::backward:
      host_.clearFocus();
      host_.moveFocus(cause == Cause::forward);
      ringWanted_ = true;
      return;
    case Cause::interruption:
      return;  // it is where it was
    case Cause::other:
      // With several targets, select none.
      if (!host_.focusFrame() && host_.actingElements() == 1) host_.moveFocus(true);
      ringWanted_ = false;
      return;
  }
}

void ViewFocus::left(Cause cause) {
  if (cause == Cause::interruption) return;
  host_.clearFocus();
  ringWanted_ = false;
}

bool ViewFocus::walk(bool forward) {
  ringWanted_ = true;
  return host_.moveFocus(forward);
}

std::optional<layout::Rect> ViewFocus::ring() const {
  return ringWanted_ ? host_.focusFrame() : std::nullopt;
}

}  // namespace quorix::hosting
