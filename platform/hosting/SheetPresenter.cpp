#include "platform/hosting/SheetPresenter.h"

#include <algorithm>
#include <cmath>
#include <functional>
#include <utility>

#include "platform/hosting/SceneLayers.h"
#include "platform/hosting/SheetGeometry.h"
#include "platform/hosting/TextFit.h"
#include "platform/hosting/ViewFocus.h"
#include "platform/layout/PixelGrid.h"

namespace quorix::hosting {
namespace {

constexpr double dimming = 0.4;           // of black, behind a sheet at rest
constexpr double approachPerSecond = 14;  // how fast the panel closes in on where it belongs
constexpr double dragSlop = 8;            // points before a press becomes a drag
constexpr double flickSpeed = 600;        // points a second
constexpr double upwardResistance = 0.2;  // of a drag above the sheet's height
constexpr double settledWithin = 0.5;     // points

graphics::RGBA colorOfPanel(graphics::Appearance appearance) {
  return appearance == graphics::Appearance::dark ? graphics::RGBA{28, 28, 30, 255}
                                                  : graphics::RGBA{255, 255, 255, 255};
}

}  // namespace

struct SheetPresenter::State final : ViewHost::Client {
  State(text::TextEngine& engine, SheetPresenter::Client& surface)
      : client(surface), content(engine, *this), textFit(content), focus(content) {}

  void viewNeedsDisplay() override {
    if (textFit.isTrying()) return;
    contentChanged();
    moved();
  }
  void contentChanged() {
    overlay.reset();
    panelAtRest.reset();
    textFit.contentChanged();
    ++panelRevision;
  }
  void presentationChanged() override { client.sheetPresentationChanged(); }

  double restingHeight() {
    return geometry.contentHeight(content.detents()) + geometry.bottomInset();
  }
  bool isMoving() { return presentation && !closed && (closing || revealed != target()); }
  bool advance(double seconds);
  /// The panel moved, or its target did.
  void moved() {
    client.sheetNeedsDisplay();
    if (!motion) advance(0);
  }
  double target() { return closing ? 0 : restingHeight() - drag; }
  void reveal(double points) {
    if (revealed == points) return;
    revealed = points;
    overlay.reset();
    client.sheetNeedsDisplay();
  }
  layout::Rect panel() const {
    return layout::PixelGrid(content.environment().scale).round(geometry.panel(revealed));
  }
  layout::Point inContent(layout::Point point) const {
    const layout::Point origin = panel().origin;
    return {point.x - origin.x, point.y - origin.y};
  }
  void endDrag() {
    press.reset();
    dragging = false;
    drag = 0;
  }
  const render::Scene& contentScene() {
    return textFit.scene({geometry.panelWidth(), restingHeight()},
                         {.bottom = geometry.bottomInset()}, geometry.largest());
  }
  void addPanel(render::Scene& to, const layout::Rect& frame);
  std::optional<layout::Rect> inWindow(const std::optional<layout::Rect>& frame) const {
    return frame ? std::optional(frame->translated(panel().origin)) : std::nullopt;
  }
  bool perform(SheetCloseReason reason, const std::function<bool()>& action);
  void close();

  SheetPresenter::Client& client;
  ViewHost content;
  TextFit textFit;
  ViewFocus focus;
  SheetGeometry geometry;
  std::optional<swiftui::Presentation> presentation;
  std::shared_ptr<SheetCloseReason> closeReason =
      std::make_shared<SheetCloseReason>(SheetCloseReason::host);
  std::optional<render::Scene> overlay;
  std::optional<render::Scene> panelAtRest;
  unsigned panelRevision = 0;
  double revealed = 0;  ///< points of the panel that have risen
  double drag = 0;      ///< points that the finger holds it down
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

/// Performs `action`, which may destroy this, and notes `reason` if that closes the sheet.
bool SheetPresenter::State::perform(SheetCloseReason reason, const std::function<bool()>& action) {
  if (!presentation) return false;
  const auto isPresented = presentation->isPresented;
  const auto noted = closeReason;
  const bool before = isPresented.get();
  const bool performed = action();
  if (before && !isPresented.get()) *noted = reason;
  return performed;
}

/// Adds the panel with its content. Items that cover the top corners get the panel's radius.
void SheetPresenter::State::addPanel(render::Scene& to, const layout::Rect& frame) {
  to.appearance = contentScene().appearance;
  const graphics::RGBA color = colorOfPanel(to.appearance);
  to.items.emplace_back(std::in_place_type<render::FillItem>,
                        render::FillItem{frame, color, SheetGeometry::cornerRadius});
  to.append(contentScene(), frame.origin);
  SheetGeometry::roundTop(to, frame);
}

bool SheetPresenter::State::advance(double seconds) {
  if (!isMoving()) return false;
  const double left = target() - revealed;
  const double step = left * (1 - std::exp(-approachPerSecond * seconds));
  const bool arrives = !motion || dragging || std::abs(left - step) < settledWithin;
  reveal(arrives ? target() : revealed + step);
  if (!arrives || !closing) return isMoving();
  close();
  return false;
}

SheetPresenter::SheetPresenter(text::TextEngine& engine, Client& client)
    : state_(std::make_unique<State>(engine, client)) {}

SheetPresenter::~SheetPresenter() = default;

void SheetPresenter::setEnvironment(const swiftui::Environment& environment) {
  state_->textFit.setEnvironment(environment);
}

void SheetPresenter::setWindow(layout::Size size, layout::EdgeInsets safeArea) {
  const bool atRest = !isMoving();
  const layout::Size before = std::exchange(state_->geometry, {size, safeArea}).window;
  if (before != size) state_->textFit.reset();
  state_->contentChanged();
  if (atRest && state_->presentation) state_->revealed = state_->target();
  state_->client.sheetNeedsDisplay();
}

void SheetPresenter::setMotion(bool enabled) {
  state_->motion = enabled;
  state_->moved();
}

void SheetPresenter::present(const swiftui::Presentation& presentation) {
  if (presentation.isPresented.get()) *state_->closeReason = SheetCloseReason::host;
  state_->presentation = presentation;
  state_->closing = false;
  state_->closed = false;
  state_->content.updateRoot(presentation.content);
  state_->content.setOnScreen(true);
}

void SheetPresenter::retract() {
  state_->closing = true;
  state_->endDrag();
  state_->client.sheetPresentationChanged();  // what stands above goes along
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

const render::Scene& SheetPresenter::scene() {
  State& state = *state_;
  if (state.overlay) return *state.overlay;

  state.contentScene();  // finds the text size, on which the height depends
  render::Scene overlay;
  overlay.size = state.geometry.window;
  overlay.items.emplace_back(std::in_place_type<render::FillItem>,
                             render::FillItem{{{}, overlay.size}, shade(), 0});
  state.addPanel(overlay, state.panel());
  state.overlay = std::move(overlay);
  return *state.overlay;
}

graphics::RGBA SheetPresenter::shade() {
  const double resting = state_->restingHeight();
  const double risen = resting > 0 ? std::clamp(state_->revealed / resting, 0.0, 1.0) : 0;
  return {0, 0, 0, static_cast<std::uint8_t>(std::lround(255 * dimming * risen))};
}

const render::Scene& SheetPresenter::panel() {
  State& state = *state_;
  if (state.panelAtRest) return *state.panelAtRest;
  render::Scene panel;
  panel.size = state.contentScene().size;
  state.addPanel(panel, {{}, panel.size});
  state.panelAtRest = std::move(panel);
  return *state.panelAtRest;
}

graphics::RGBA SheetPresenter::panelColor() const {
  return colorOfPanel(state_->content.environment().appearance);
}

unsigned SheetPresenter::panelRevision() const { return state_->panelRevision; }

layout::Rect SheetPresenter::panelFrame() const { return state_->panel(); }

void SheetPresenter::pointerPressed(layout::Point point) {
  if (state_->closing) return;  // a second tap on what closes it must not open it again
  state_->focus.hideRing();
  state_->press = point;
  state_->pressedOutside = !state_->panel().contains(point);
  if (!state_->pressedOutside) state_->content.pointerPressed(state_->inContent(point));
  state_->client.sheetNeedsDisplay();
}

void SheetPresenter::pointerMoved(layout::Point point) {
  if (!state_->press || state_->pressedOutside) return;
  const double down = point.y - state_->press->y;
  if (!state_->dragging && std::abs(down) > dragSlop) {
    state_->dragging = true;
    state_->content.pointerCancelled();
  }
  if (!state_->dragging) return;
  state_->drag = down >= 0 ? down : down * upwardResistance;
  state_->reveal(state_->target());
}

void SheetPresenter::pointerReleased(layout::Point point, double velocity) {
  if (!state_->press) return;
  const bool outside = state_->pressedOutside && !state_->panel().contains(point);
  const bool swiped =
      state_->dragging && (velocity > flickSpeed || state_->drag > state_->restingHeight() / 2);
  const bool tapped = !state_->pressedOutside && !state_->dragging;
  state_->endDrag();
  state_->moved();
  if (outside || swiped) {
    dismiss(outside ? SheetCloseReason::outside : SheetCloseReason::swipe);
  } else if (tapped) {
    // Last, since an action may destroy this presenter.
    state_->perform(SheetCloseReason::button,
                    [&] { return state_->content.pointerReleased(state_->inContent(point)); });
  }
}

void SheetPresenter::pointerCancelled() {
  state_->content.pointerCancelled();
  state_->endDrag();
  state_->moved();
}

bool SheetPresenter::moveFocus(bool forward) {
  const bool moved =
      state_->focus.walk(forward) || (!hasEmbeds(panel()) && state_->focus.walk(forward));
  state_->client.sheetNeedsDisplay();
  return moved;
}

bool SheetPresenter::focus(int index) {
  state_->client.sheetNeedsDisplay();
  return state_->content.focus(index);
}

void SheetPresenter::dropFocus() {
  state_->focus.left(ViewFocus::Cause::other);
  state_->client.sheetNeedsDisplay();
}

std::optional<layout::Rect> SheetPresenter::focusFrame() const {
  return state_->inWindow(state_->content.focusFrame());
}

std::optional<layout::Rect> SheetPresenter::ringFrame() const {
  return state_->inWindow(state_->focus.ring());
}

bool SheetPresenter::activateFocus() {
  return !state_->closing && state_->perform(SheetCloseReason::button,
                                             [this] { return state_->content.activateFocus(); });
}

bool SheetPresenter::activate(int index) {
  return !state_->closing &&
         state_->perform(SheetCloseReason::button, [&] { return state_->content.activate(index); });
}

void SheetPresenter::settle() {
  state_->content.settle();
  scene();
  state_->content.settle();
  if (isMoving()) {
    state_->reveal(state_->target());
    if (state_->closing) state_->close();
  }
}

}  // namespace quorix::hosting
