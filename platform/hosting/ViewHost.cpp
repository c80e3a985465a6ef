#include "platform/hosting/ViewHost.h"

#include <algorithm>
#include <utility>

#include "platform/hosting/RecentEvaluations.h"
#include "platform/swiftui/DisplayListBuilder.h"
#include "platform/swiftui/LayoutPass.h"
#include "platform/swiftui/ViewGraph.h"

namespace quorix::hosting {
namespace {

/// Sizes that are cached. A surface's layout asks for fewer, one after the other.
constexpr std::size_t manyProposals = 4;

/// The area in which a view is placed.
struct Area {
  layout::Size size;
  layout::EdgeInsets insets;
  bool operator==(const Area&) const = default;
};

}  // namespace

struct ViewHost::State {
  State(text::TextEngine& textEngine, Client& surface)
      : engine(textEngine), client(surface), graph([this] { invalidated(); }) {}
  ~State() { forget(); }

  RecentEvaluations::Slot takeEvaluation();
  void evaluateAgain();
  void forget() { RecentEvaluations::shared().take(evaluation); }
  void invalidated();
  void changed();
  void layOut(const Area& within);
  bool isCurrent() const { return scene && shown == changes; }
  const render::Scene* current();
  const render::AccessibilityElement* acting(int index);

  text::TextEngine& engine;
  Client& client;
  swiftui::Environment environment;
  swiftui::ViewGraph graph;
  // Filled between an evaluation and its display list. A view at rest keeps only the display list.
  RecentEvaluations::Slot evaluation;
  std::vector<std::pair<layout::ProposedSize, layout::Size>> fitted;
  std::optional<swiftui::Presentation> presentation;
  swiftui::PresentationDetents detents;
  std::optional<render::Scene> scene;
  std::optional<Area> area;  ///< of the latest display list
  std::optional<layout::Point> pressed;
  int focused = -1;        ///< index of an accessibility element
  unsigned changes = 1;    ///< counts the changes of the view and its settings
  unsigned evaluated = 0;  ///< `changes` at the start of the latest evaluation
  unsigned shown = 0;      ///< `changes` at the start of the layout of `scene`
};

/// Takes the evaluation out of the cache: content that changes during a layout empties the slot.
RecentEvaluations::Slot ViewHost::State::takeEvaluation() {
  while (!evaluation) evaluateAgain();  // a client callback may have consumed the evaluation
  return RecentEvaluations::shared().take(evaluation);
}

void ViewHost::State::evaluateAgain() {
  evaluated = changes;
  RecentEvaluations::shared().fill(evaluation, graph.evaluate(environment));
  detents = evaluation->detents;
  for (const auto& content : evaluation->hosted) {
    // The content may outlive this object.
    content->onChange([this, life = graph.life()] {
      if (!life.expired()) changed();
    });
  }
  const bool had = presentation.has_value();
  presentation = evaluation->presentation;
  if (had || presentation) client.presentationChanged();
}

/// Evaluates at once when the graph changed, even without a paint: a sheet may open or close.
void ViewHost::State::invalidated() {
  ++changes;
  fitted.clear();
  scene.reset();
  evaluateAgain();
  client.viewNeedsDisplay();
}

/// Evaluates when the surface next asks, because it often changes several settings in a row.
void ViewHost::State::changed() {
  ++changes;
  fitted.clear();
  scene.reset();
  forget();
  client.viewNeedsDisplay();
}

void ViewHost::State::layOut(const Area& within) {
  const auto taken = takeEvaluation();
  const unsigned taking = changes;
  const auto safe = layout::SafeArea::within(within.size, within.insets);
  swiftui::LayoutPass pass(taken->arena(), engine, environment.scale, safe);
  const layout::ProposedSize proposal = {safe.frame.size.width, safe.frame.size.height};
  const layout::Size chosen = pass.measure(*taken->root, proposal);
  const layout::Point centered = layout::alignedOffset({}, safe.frame.size, chosen);
  const layout::Point origin = {safe.frame.left() + std::max(0.0, centered.x),
                                safe.frame.top() + std::max(0.0, centered.y)};
  pass.setFrame(*taken->root, {origin, chosen}, proposal);
  if (environment.direction == layout::LayoutDirection::rightToLeft) {
    swiftui::mirror(*taken->root, within.size.width);
  }
  swiftui::DisplayListBuilder builder(*taken, environment, engine, within.size);
  builder.build();
  area = within;
  scene.reset();
  for (const swiftui::WatchedSize& now : builder.geometry) {
    // The action may call this object again.
    if (std::exchange(now.told->value, now.size) != now.size) now.action(now.size);
  }
  if (scene) return;  // an action had a later change laid out
  scene = std::move(builder.list);
  shown = taking;
}

/// The display list for input. If the latest one is out of date, makes a new one now for the same
/// area, without waiting for the next frame. Null before the first layout.
const render::Scene* ViewHost::State::current() {
  if (!isCurrent() && area) layOut(Area(*area));
  return scene ? &*scene : nullptr;
}

ViewHost::ViewHost(text::TextEngine& engine, Client& client)
    : state_(std::make_unique<State>(engine, client)) {}

ViewHost::~ViewHost() = default;

void ViewHost::setRoot(swiftui::View root) {
  state_->graph.setRoot(std::move(root));
  state_->pressed.reset();
  state_->focused = -1;
  state_->changed();
}

void ViewHost::updateRoot(swiftui::View root) {
  state_->graph.updateRoot(std::move(root));
  state_->changed();
}

void ViewHost::setEnvironment(const swiftui::Environment& environment) {
  if (state_->environment == environment) return;
  state_->environment = environment;
  state_->changed();
}

const swiftui::Environment& ViewHost::environment() const { return state_->environment; }

void ViewHost::setOnScreen(bool onScreen) {
  if (state_->graph.isOnScreen() == onScreen) return;
  state_->graph.setOnScreen(onScreen);
  if (onScreen) state_->changed();
}

layout::Size ViewHost::sizeThatFits(layout::ProposedSize proposal) {
  auto& fitted = state_->fitted;
  for (const auto& [offered, size] : fitted) {
    if (offered == proposal) return size;
  }
  auto taken = state_->takeEvaluation();
  const unsigned taking = state_->changes;
  swiftui::LayoutPass pass(taken->arena(), state_->engine, state_->environment.scale);
  const layout::Size size = pass.measure(*taken->root, proposal);
  if (state_->changes != taking) return size;  // out of date already: do not cache it
  RecentEvaluations::shared().fill(state_->evaluation, std::move(taken));
  if (fitted.size() == manyProposals) fitted.clear();
  fitted.emplace_back(proposal, size);
  return size;
}

const render::Scene& ViewHost::scene(layout::Size size, const layout::EdgeInsets& safeArea) {
  const Area area = {size, safeArea};
  if (!state_->isCurrent() || state_->area != area) state_->layOut(area);
  return *state_->scene;
}

render::Scene ViewHost::takeScene(layout::Size size) {
  scene(size);
  return *std::exchange(state_->scene, std::nullopt);
}

void ViewHost::rest() {
  state_->scene.reset();
  state_->forget();
}

void ViewHost::forgetSizes() { state_->fitted = decltype(state_->fitted)(); }

const swiftui::Presentation* ViewHost::presentation() {
  if (state_->evaluated != state_->changes) state_->evaluateAgain();
  return state_->presentation ? &*state_->presentation : nullptr;
}

const swiftui::PresentationDetents& ViewHost::detents() {
  if (state_->evaluated != state_->changes) state_->evaluateAgain();
  return state_->detents;
}

void ViewHost::settle() {
  for (int turn = 0; turn < mostTurns && state_->graph.settle(); ++turn) {
  }
}

bool ViewHost::pointerPressed(layout::Point point) {
  state_->pressed.reset();
  const render::Scene* scene = state_->current();
  if (!scene || !scene->hitTest(point)) return false;
  state_->pressed = point;
  return true;
}

bool ViewHost::pointerReleased(layout::Point point) {
  const foundation::Action action = endPress(point);
  if (action) action();
  return bool(action);
}

foundation::Action ViewHost::endPress(layout::Point point) {
  const auto pressed = std::exchange(state_->pressed, std::nullopt);
  const render::Scene* scene = pressed ? state_->current() : nullptr;
  const render::HitArea* area = scene ? scene->hitTest(*pressed) : nullptr;
  return area && scene->hitTest(point) == area ? area->action : nullptr;
}

void ViewHost::pointerCancelled() { state_->pressed.reset(); }

bool ViewHost::moveFocus(bool forward) {
  const render::Scene* scene = state_->current();
  const int count = scene ? static_cast<int>(scene->accessibility.size()) : 0;
  const int step = forward ? 1 : -1;
  int next = state_->focused < 0 && !forward ? count : state_->focused;
  do {
    next += step;
  } while (next >= 0 && next < count && !scene->isFocusStop(static_cast<std::size_t>(next)));
  state_->focused = next >= 0 && next < count ? next : -1;
  return state_->focused >= 0;
}

/// Element `index` of the latest display list; null if it has no action.
const render::AccessibilityElement* ViewHost::State::acting(int index) {
  const render::Scene* latest = index < 0 ? nullptr : current();
  const auto position = static_cast<std::size_t>(index);
  if (!latest || position >= latest->accessibility.size()) return nullptr;
  const auto& element = latest->accessibility[position];
  return element.action ? &element : nullptr;
}

bool ViewHost::focus(int index) {
  if (!state_->acting(index)) return false;
  state_->focused = index;
  return true;
}

void ViewHost::clearFocus() { state_->focused = -1; }

int ViewHost::focusStops() const {
  const render::Scene* scene = state_->current();
  int stops = 0;
  const std::size_t count = scene ? scene->accessibility.size() : 0;
  for (std::size_t i = 0; i < count; ++i) stops += scene->isFocusStop(i) ? 1 : 0;
  return stops;
}

std::optional<layout::Rect> ViewHost::focusFrame() const {
  const render::AccessibilityElement* element = state_->acting(state_->focused);
  return element ? std::optional(element->frame) : std::nullopt;
}

std::optional<layout::Rect> ViewHost::ringFrame() const {
  if (!focusFrame()) return std::nullopt;
  return state_->scene->actingFrame(static_cast<std::size_t>(state_->focused));
}

bool ViewHost::activateFocus() { return activate(state_->focused); }

bool ViewHost::activate(int index) {
  const render::AccessibilityElement* element = state_->acting(index);
  if (element) element->action();
  return element != nullptr;
}

}  // namespace quorix::hosting
