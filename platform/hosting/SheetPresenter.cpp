#include "platform/hosting/SheetPresenter.h"

#include <algorithm>
#include <cmath>
#include <functional>
#include <utility>

#include "platform/hosting/SheetPanel.h"

namespace quorix::hosting {
namespace {

constexpr double approachPerSecond = 14;  // rate at which the panel approaches its target
constexpr double dragSlop = 8;            // points before a press becomes a drag
constexpr double flickSpeed = 600;        // points a second
constexpr double settledWithin = 0.5;     // points

}  // namespace

struct SheetPresenter::State final : ViewHost::Client {
  State(text::TextEngine& engine, SheetPresenter::Client& surface)
      : client(surface), panel(engine, *this) {}

  void viewNeedsDisplay() override {
    panel.changed();
    moved();
  }
  void presentationChanged() override { client.sheetPresentationChanged(); }

  bool panelMoves() { return presentation && !closed && (closing || panel.revealed() != target()); }
  bool isMoving() { return panelMoves() || (!closed && scroll.isMoving()); }
  bool advance(double seconds);
  /// The panel or its target moved.
  void moved() {
    client.sheetNeedsDisplay();
    if (!motion) advance(0);
  }
  double target() { return closing ? 0 : panel.restingHeight() - drag; }
  void reveal(double points) {
    if (panel.reveal(points)) client.sheetNeedsDisplay();
  }
  void endDrag() {
    press.reset();
    dragging = false;
    drag = caughtAt = 0;
    scroll.release(0);
  }
  void scrollBy(const std::function<void()>& change);
  bool perform(SheetCloseReason reason, const std::function<bool()>& action);
  void close();

  SheetPresenter::Client& client;
  SheetPanel panel;
  ViewHost& content = panel.content;
  ViewFocus& focus = panel.focus;
  SheetScroll& scroll = panel.scroll;
  std::optional<swiftui::Presentation> presentation;
  std::shared_ptr<SheetCloseReason> closeReason =
      std::make_shared<SheetCloseReason>(SheetCloseReason::host);
  double drag = 0;      ///< points that the finger moved the panel down
  double caughtAt = 0;  ///< points below rest at which a drag caught the rising panel
  std::optional<layout::Point> press;
  bool pressedOutside = false;
  bool dragging = false;
  bool motion = true;
  bool closing = false;
  bool closed = false;
};

void SheetPresenter::State::close() {
  if (std::exchange(closed, true)) return;
  content.setOnScreen(false);
  client.sheetDidClose();
}

/// Performs `action`, which may destroy this. Stores `reason` if the action closes the sheet.
bool SheetPresenter::State::perform(SheetCloseReason reason, const std::function<bool()>& action) {
  if (!presentation) return false;
  const auto isPresented = presentation->isPresented;
  const auto noted = closeReason;
  const bool before = isPresented.get();
  const bool performed = action();
  if (before && !isPresented.get()) *noted = reason;
  return performed;
}

/// Runs `change`, which scrolls, and requests a new frame.
void SheetPresenter::State::scrollBy(const std::function<void()>& change) {
  panel.lay();
  const double before = scroll.offset();
  change();
  if (scroll.offset() != before) panel.changed();
  moved();
}

bool SheetPresenter::State::advance(double seconds) {
  if (!isMoving()) return false;
  if (scroll.advance(panelMoves() ? 0 : seconds)) {
    panel.changed();
    client.sheetNeedsDisplay();
  }
  const double left = target() - panel.revealed();
  const double step = left * (1 - std::exp(-approachPerSecond * seconds));
  const bool arrives = !motion || dragging || std::abs(left - step) < settledWithin;
  reveal(arrives ? target() : panel.revealed() + step);
  if (!arrives || !closing) return isMoving();
  close();
  return false;
}

SheetPresenter::SheetPresenter(text::TextEngine& engine, Client& client)
    : state_(std::make_unique<State>(engine, client)) {}

SheetPresenter::~SheetPresenter() = default;

void SheetPresenter::setEnvironment(const swiftui::Environment& environment) {
  state_->content.setEnvironment(environment);
}

void SheetPresenter::setWindow(layout::Size size, layout::EdgeInsets safeArea) {
  const SheetGeometry geometry = {size, safeArea};
  if (state_->panel.geometry == geometry) return;
  const bool atRest = !state_->panelMoves();
  state_->panel.geometry = geometry;
  state_->panel.changed();
  if (atRest && state_->presentation) state_->panel.reveal(state_->target());
  state_->client.sheetNeedsDisplay();
}

void SheetPresenter::setMotion(bool enabled) {
  state_->motion = enabled;
  state_->scroll.setMotion(enabled);
  state_->moved();
}

void SheetPresenter::present(const swiftui::Presentation& presentation) {
  if (presentation.isPresented.get()) *state_->closeReason = SheetCloseReason::host;
  state_->closing = false;
  state_->closed = false;
  state_->content.updateRoot(presentation.content);
  state_->presentation = presentation;  // after `updateRoot`, which would evaluate it off screen
  state_->content.setOnScreen(true);
}

void SheetPresenter::retract() {
  state_->closing = true;
  state_->endDrag();
  state_->client.sheetPresentationChanged();  // a sheet above closes with it
  state_->moved();
}

const swiftui::Presentation* SheetPresenter::presentation() {
  return state_->closing ? nullptr : state_->content.presentation();
}

void SheetPresenter::dismiss(SheetCloseReason reason) {
  state_->perform(reason, [this] { return state_->presentation->isPresented.set(false), true; });
}

SheetCloseReason SheetPresenter::closeReason() const { return *state_->closeReason; }

bool SheetPresenter::isMoving() const { return state_->isMoving(); }

bool SheetPresenter::advance(double seconds) { return state_->advance(seconds); }

const render::Scene& SheetPresenter::scene() { return state_->panel.overlay(); }

graphics::RGBA SheetPresenter::shade() { return state_->panel.shade(); }

const render::Scene& SheetPresenter::panel() { return state_->panel.atRest(); }

graphics::RGBA SheetPresenter::panelColor() const { return state_->panel.color(); }

unsigned SheetPresenter::panelRevision() const { return state_->panel.revision(); }

layout::Rect SheetPresenter::panelFrame() const { return state_->panel.frame(); }

void SheetPresenter::pointerPressed(layout::Point point) {
  if (state_->closing) return;  // a second tap on the closing element must not open the sheet again
  state_->focus.hideRing();
  state_->content.pointerCancelled();
  state_->press = point;
  state_->pressedOutside = !state_->panel.frame().contains(point);
  if (!state_->pressedOutside && !state_->scroll.hold() && scene().hitTest(point)) {
    state_->content.pointerPressed(state_->panel.inContent(point));
  }
  state_->client.sheetNeedsDisplay();
}

void SheetPresenter::pointerMoved(layout::Point point) {
  if (!state_->press || state_->pressedOutside) return;
  const double down = point.y - state_->press->y;
  if (!state_->dragging && std::abs(down) > dragSlop) {
    state_->dragging = true;
    state_->content.pointerCancelled();
    // Start the drag where the panel was caught, without a jump over the slop.
    state_->caughtAt = state_->target() - state_->panel.revealed();
    state_->press->y += std::copysign(dragSlop, down) - state_->caughtAt;
  }
  if (!state_->dragging) return;
  const double held = point.y - state_->press->y;
  state_->scrollBy([&] { state_->drag = state_->scroll.drag(held); });
  state_->reveal(state_->target());
}

void SheetPresenter::pointerReleased(layout::Point point, double velocity) {
  if (!state_->press) return;
  const bool outside = state_->pressedOutside && !state_->panel.frame().contains(point);
  const bool flicked = velocity > flickSpeed && state_->scroll.isPulledFromTop();
  const double pulled = state_->drag - state_->caughtAt;
  const bool swiped = state_->dragging && (flicked || pulled > state_->panel.restingHeight() / 2);
  const bool tapped = !state_->pressedOutside && !state_->dragging;
  const double fling = state_->dragging && !swiped ? velocity : 0;
  state_->endDrag();
  state_->scroll.release(fling);
  state_->moved();
  if (outside || swiped) {
    dismiss(outside ? SheetCloseReason::outside : SheetCloseReason::swipe);
  } else if (tapped) {
    // This comes last: an action may destroy this presenter.
    const layout::Point inContent = state_->panel.inContent(point);
    state_->perform(SheetCloseReason::button,
                    [&] { return state_->content.pointerReleased(inContent); });
  }
}

void SheetPresenter::pointerCancelled() {
  state_->content.pointerCancelled();
  state_->endDrag();
  state_->moved();
}

void SheetPresenter::scroll(const ScrollEvent& event) {
  if (state_->closing) return;
  state_->scrollBy([&] {
    event.follows ? state_->scroll.follow(event.distance) : state_->scroll.moveBy(event.distance);
  });
}

bool SheetPresenter::scroll(Key key) {
  const auto distance = state_->panel.scrollDistance(key);
  if (distance) scroll(ScrollEvent{*distance});
  return distance.has_value();
}

bool SheetPresenter::isScrolledAway(const layout::Rect& frame) const {
  return state_->panel.isScrolledAway(frame);
}

bool SheetPresenter::moveFocus(bool forward) {
  const bool moved =
      state_->focus.walk(forward) || (!hasEmbeds(panel()) && state_->focus.walk(forward));
  state_->scrollBy([this] { state_->panel.scrollToFocus(); });
  return moved;
}

bool SheetPresenter::focus(int index) {
  const bool moved = state_->content.focus(index);
  state_->scrollBy([this] { state_->panel.scrollToFocus(); });
  return moved;
}

void SheetPresenter::dropFocus() {
  state_->focus.left(ViewFocus::Cause::other);
  state_->client.sheetNeedsDisplay();
}

std::optional<layout::Rect> SheetPresenter::focusFrame() const {
  return state_->panel.inWindow(state_->content.focusFrame());
}

std::optional<layout::Rect> SheetPresenter::ringFrame() const { return state_->panel.ring(); }

bool SheetPresenter::activateFocus() {
  return !state_->closing && state_->perform(SheetCloseReason::button,
                                             [this] { return state_->content.activateFocus(); });
}

bool SheetPresenter::activate(int index) {
  return !state_->closing &&
         state_->perform(SheetCloseReason::button, [&] { return state_->content.activate(index); });
}

void SheetPresenter::settleContent() { state_->content.settle(); }

void SheetPresenter::settle() {
  settleContent();
  scene();
  settleContent();
  scene();  // sets the scroll range
  if (state_->scroll.settle()) state_->panel.changed();
  if (isMoving()) {
    state_->reveal(state_->target());
    if (state_->closing) state_->close();
  }
}

}  // namespace quorix::hosting
