#include "platform/hosting/SheetSession.h"

#include <utility>

#include "platform/hosting/SheetPictures.h"
#include "platform/hosting/WindowSession.h"

namespace quorix::hosting {
namespace {

constexpr double doubleTap = 400;  // milliseconds from the first release to the second press

}  // namespace

SheetSession::SheetSession(WindowSession& window, text::TextEngine& engine)
    : window_(&window),
      presenter_(engine, *this),
      pictures_(std::make_unique<SheetPictures>([this](int index) { return newPicture(index); })) {
  window.sheets_.push_back(this);
}

SheetSession::~SheetSession() { leaveWindow(); }

bool SheetSession::isTopmost() const { return window_ && window_->topmost() == this; }

void SheetSession::followOpener() {
  if (const auto opener = opener_.lock()) settings_ = (*opener)->settings();
  settings_.motion = settings_.motion && animated_;
  followScale();
  followWindow();
  presenter_.setMotion(settings_.motion);
  if (window_) window_->settingsChanged(*this);
}

void SheetSession::followScale() {
  settings_.environment.scale = scale();
  presenter_.setEnvironment(settings_.environment);
}

void SheetSession::windowResized(layout::Size size) {
  windowSize_ = size;
  followWindow();
}

/// Applies a change of the window's size or safe area, or of the reading direction.
void SheetSession::followWindow() {
  if (!window_) return;
  presenter_.setWindow(windowSize_, window_->safeArea().in(settings_.environment.direction));
}

// Opening and closing.

void SheetSession::present(const swiftui::Presentation& presentation) {
  gaveUpPages_ = false;
  presenter_.present(presentation);
  if (std::exchange(presented_, true)) return;
  coverChanged();
  focusReturn_ = focusReturn();
  comeUp();
  takeFocus();
  if (const auto opener = opener_.lock()) (*opener)->sheetCameUp();
  if (EmbeddedPages::hasPages(presenter_.panel()) && !canShowPages()) giveUpPages();
}

SheetSession* SheetSession::makeSheet() { return window_ ? &window_->makeSheet(this) : nullptr; }

void SheetSession::close() {
  if (leaveWindow()) leave();
}

/// Returns the focus on a later turn: the window may be closing, which does not allow a focus
/// change.
void SheetSession::abandon() {
  if (!leaveWindow()) return;
  abandonSheet();
  stopClock();
  later([this] { leave(); });
}

/// False if the sheet was closed before.
bool SheetSession::leaveWindow() {
  if (window_) std::erase(window_->sheets_, this);
  window_ = nullptr;
  if (std::exchange(closed_, true)) return false;
  const auto opener = presented_ ? opener_.lock() : nullptr;
  if (opener) (*opener)->sheetLeft(presenter_.closeReason());
  return true;
}

void SheetSession::leave() {
  stopClock();
  closeSheet();  // first, because it returns the focus to this sheet
  coverChanged();
  if (holdsFocus() && !(focusReturn_ && focusReturn_())) dropFocus();
  vanish();
}

bool SheetSession::followFrame() {
  if (!isOpen()) return false;
  presenter_.panel();  // the motion depends on its height
  if (!settings_.motion) presenter_.advance(0);
  if (closed_) return false;
  if (pictures_->follow(presenter_, ringFrame(), scale())) sceneChanged();
  if (presenter_.isMoving()) startClock();  // after the painting, which takes none of its time
  followPages();
  if (pictures_->hideTop(coveredTop_)) needsFrame();
  return true;
}

void SheetSession::paintAgain() {
  pictures_->paintAgain();
  needsFrame();
}

void SheetSession::dropChildren() {
  leaveWindow();  // first: a page that goes with the focus must not move it in this sheet
  pages_.follow({});
  pictures_.reset();
}

std::unique_ptr<ScenePicture> SheetSession::newPicture(int) { return nullptr; }

bool SheetSession::followMotion() {
  if (!settings_.motion) presenter_.advance(0);
  if (presenter_.isMoving()) startClock();  // without motion too: it times the scroll indicator
  return !closed_;
}

void SheetSession::focusWentBelow() {
  if (presented_ && isTopmost()) takeFocus();
}

// Pages.

void SheetSession::wasShown() {
  if (std::exchange(shown_, true) || closed_) return;
  needsFrame();
}

void SheetSession::followPages() {
  coveredTop_ = 0;
  if (closed_ || gaveUpPages_ || !(shown_ || opensPagesAtOnce())) return;
  if (pagesRevision_ != presenter_.panelRevision()) {
    pagesRevision_ = presenter_.panelRevision();
    if (!pages_.follow(presenter_.panel())) return giveUpPages();
  }
  const layout::Point corner = presenter_.panelFrame().origin;
  int index = 0;
  pages_.place(presenter_.panel(), scale(), clipsPages(), [&](PageEngine& page, PagePlace place) {
    place.room = place.room.translated(corner);
    if (place.isAtTop) coveredTop_ = place.strip;
    placePage(page, place, index++);
  });
}

/// Runs once for each presentation: the sheet may still be falling at its next frame.
void SheetSession::giveUpPages() {
  gaveUpPages_ = true;
  EmbeddedPages::sendOutside(presenter_.panel());
  presenter_.dismiss(SheetCloseReason::host);
}

void SheetSession::pageTookFocus() {
  presenter_.dropFocus();
  focusMoved(false);
}

void SheetSession::pageEnded() {
  takeFocusFromPages();
  focusMoved(false);
}

void SheetSession::leavePages(bool forward) {
  takeFocusFromPages();
  walk(forward);
}

std::vector<PageEngine*> SheetSession::pages() const { return pages_.shown(); }

/// Moves the focus to the first page, or backward to the last. False without pages.
bool SheetSession::enterPages(bool forward) {
  const auto shown = pages();
  if (shown.empty()) return false;
  focusPage(forward ? *shown.front() : *shown.back(), forward);
  return true;
}

// Pointer.

void SheetSession::track(const PointerEvent& event) {
  velocity_.add(event.point.y, event.time * 1e-3);
}

/// Whether `event` is the second of two quick taps on the element that opened the sheet. It must
/// not close the sheet again.
bool SheetSession::isSecondTap(const PointerEvent& event) const {
  const auto opener = opener_.lock();
  const double passed = opener ? event.time - (*opener)->releasedAt_ : 0;
  return passed > 0 && passed < doubleTap && !presenter_.panelFrame().contains(event.point);
}

bool SheetSession::pointerPressed(const PointerEvent& event) {
  if (isSecondTap(event)) return true;
  takeFocusFromPages();
  velocity_.reset();
  track(event);
  presenter_.pointerPressed(event.point);
  return true;
}

bool SheetSession::pointerMoved(const PointerEvent& event) {
  track(event);
  presenter_.pointerMoved(event.point);
  return true;
}

void SheetSession::pointerReleased(const PointerEvent& event) {
  track(event);
  presenter_.pointerReleased(event.point, velocity_.velocity());
}

bool SheetSession::takesTapAt(layout::Point point) {
  return presenter_.scene().hitTest(point) != nullptr;
}

bool SheetSession::handle(const ScrollEvent& event) {
  presenter_.scroll(event);
  return true;
}

// Keyboard.

bool SheetSession::takes(Key key) {
  if (pages_.wouldUse(key)) return true;
  return key != Key::other && key != Key::pageBack && key != Key::pageForward;
}

bool SheetSession::handle(const KeyEvent& event) {
  if (pages_.use(event.key)) return true;
  switch (event.key) {
    case Key::escape:
    case Key::back:
      presenter_.dismiss(SheetCloseReason::key);
      return true;
    case Key::next:
    case Key::previous:
      walk(event.key == Key::next);
      return true;
    case Key::activate:
      if (!event.repeated) presenter_.activateFocus();
      return true;
    default:
      return presenter_.scroll(event.key);
  }
}

void SheetSession::walk(bool forward) {
  // The pages follow the last element. If there is no page yet, go to the first element.
  if (!presenter_.moveFocus(forward) && !enterPages(forward)) presenter_.moveFocus(forward);
  focusMoved(false);
}

// Accessibility.

const std::vector<render::AccessibilityElement>& SheetSession::elements() {
  return presenter_.scene().accessibility;
}

bool SheetSession::focusElement(int index) {
  if (!presenter_.focus(index)) return false;
  focusMoved(true);
  return true;
}

std::optional<layout::Rect> SheetSession::focusFrame() const {
  return hasFocus() ? presenter_.focusFrame() : std::nullopt;
}

std::optional<layout::Rect> SheetSession::ringFrame() const {
  return hasFocus() ? presenter_.ringFrame() : std::nullopt;
}

}  // namespace quorix::hosting
