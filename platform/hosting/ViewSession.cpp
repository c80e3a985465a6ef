#include "platform/hosting/ViewSession.h"

#include <utility>

#include "platform/hosting/SheetSession.h"
#include "platform/hosting/WindowSession.h"

namespace quorix::hosting {

void ViewSession::replaceView(swiftui::View view) {
  const bool focused = focusFrame().has_value();
  host_.setRoot(std::move(view));
  contentChanged();
  if (!focused) return;
  host_.scene(size());  // creates the new elements
  focus_.renewed();
}

void ViewSession::settingsChanged() {
  host_.setEnvironment(environment());
  if (WindowSession* in = sheets_ > 0 ? window() : nullptr) in->settingsChanged(*this);
  contentChanged();
}

void ViewSession::enterWindow() {
  if (host_.presentation()) followSheet();
}

SheetSession* ViewSession::makeSheet() {
  WindowSession* in = window();
  return in ? &in->makeSheet(this) : nullptr;
}

void ViewSession::end() {
  leaveWindow();
  if (std::exchange(sheets_, 0) > 0) closeReason_ = SheetCloseReason::host;
  tellOfSheets();
}

void ViewSession::sheetCameUp() {
  ++sheets_;
  later([this] { tellOfSheets(); });
}

void ViewSession::sheetLeft(SheetCloseReason reason) {
  --sheets_;
  closeReason_ = reason;
  later([this] { tellOfSheets(); });
}

void ViewSession::tellOfSheets() {
  const bool open = sheets_ > 0;
  if (std::exchange(toldOpen_, open) == open) return;
  open ? sheetOpened() : sheetClosed(closeReason_);
}

/// Controllers that the view presents after this appear over this window.
void ViewSession::used() {
  if (WindowSession* in = window()) in->used(*this);
}

// Frames.

void ViewSession::viewNeedsDisplay() {
  sceneStale_ = sizeStale_ = true;
  needsFrame();
}

bool ViewSession::refreshScene() {
  if (!std::exchange(sceneStale_, false)) return false;
  host_.scene(size());
  const bool acts = host_.focusStops() > 0;
  if (acts || !hasFocus()) {
    setAcceptsFocus(acts);
  } else if (acceptsFocus()) {
    leaveFocus();
  }
  sceneChanged();
  return true;
}

bool ViewSession::rest(bool isSeen) {
  if (isSeen || hasFocus() || isRead()) return false;
  host_.rest();
  return true;
}

// Pointer.

bool ViewSession::pointerPressed(const PointerEvent& event) {
  if (!host_.pointerPressed(event.point)) return false;
  used();
  if (event.pointer != PointerEvent::mouse) return true;
  const auto self = weak();
  if (acceptsFocus()) takeFocusByPress();
  if (self.expired()) return true;
  focus_.hideRing();
  needsFrame();
  return true;
}

/// Runs the action on a later turn. The toolkit may still use the surface, and the action may
/// delete it.
void ViewSession::pointerReleased(const PointerEvent& event) {
  const auto action = host_.endPress(event.point);
  if (action) later([this, action] { perform([&] { return action(), true; }); });
}

/// Runs `action` and reports it if it did something. May delete this.
void ViewSession::perform(const std::function<bool()>& action) {
  const auto self = weak();
  if (action() && !self.expired()) activated();
}

bool ViewSession::takesTapAt(layout::Point point) {
  return host_.scene(size()).hitTest(point) != nullptr;
}

// Keyboard.

bool ViewSession::handle(const KeyEvent& event) {
  if (event.key != Key::activate || !host_.focusFrame()) return false;
  if (event.repeated) return true;
  used();
  perform([this] { return host_.activateFocus(); });
  return true;
}

bool ViewSession::walk(bool forward) {
  const bool inside = focus_.walk(forward);
  needsFrame();
  if (inside) focusMoved(false);
  return inside;
}

void ViewSession::focusCame(ViewFocus::Cause cause) {
  host_.scene(size());  // creates the elements to focus
  focus_.came(cause);
  // A sheet that closes may return the focus to a view without elements to focus.
  if (cause == ViewFocus::Cause::interruption && host_.focusStops() == 0) leaveFocus();
  needsFrame();
  if (host_.focusFrame()) focusMoved(true);
}

void ViewSession::focusLeft(ViewFocus::Cause cause) {
  focus_.left(cause);
  needsFrame();
}

/// If no element acts any more, the focus leaves the view on a later turn.
void ViewSession::leaveFocus() {
  later([this] {
    if (!hasFocus() || host_.focusStops() > 0) return;
    const auto self = weak();
    giveFocusOn();
    if (!self.expired() && !hasFocus()) setAcceptsFocus(false);
  });
}

// Accessibility.

const std::vector<render::AccessibilityElement>& ViewSession::elements() {
  return host_.scene(size()).accessibility;
}

/// Focuses the element, as a tap does: a sheet returns the focus to the element that opened it.
void ViewSession::activate(int index) {
  used();
  host_.scene(size());  // creates the elements that `index` counts
  const auto self = weak();
  if (host_.focus(index) && acceptsFocus()) takeFocusByPress();
  if (self.expired()) return;
  needsFrame();
  perform([&] { return host_.activate(index); });
}

bool ViewSession::focusElement(int index) {
  host_.scene(size());  // creates the elements that `index` counts
  if (!host_.focus(index)) return false;
  needsFrame();
  if (hasFocus()) focusMoved(true);
  return true;
}

std::optional<layout::Rect> ViewSession::focusFrame() const {
  return hasFocus() ? host_.focusFrame() : std::nullopt;
}

std::optional<layout::Rect> ViewSession::ringFrame() const {
  return hasFocus() ? focus_.ring() : std::nullopt;
}

void ViewFocus::came(Cause cause) {
  switch (cause) {
    case Cause::forward:
    case Cause::backward:
      host_.clearFocus();
      host_.moveFocus(cause == Cause::forward);
      ringWanted_ = true;
      return;
    case Cause::interruption:
      return;  // the focus stays where it was
    case Cause::other:
      // With several targets, select none.
      if (!host_.focusFrame() && host_.focusStops() == 1) host_.moveFocus(true);
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
  return ringWanted_ ? host_.ringFrame() : std::nullopt;
}

}  // namespace quorix::hosting
