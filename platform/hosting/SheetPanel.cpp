#include "platform/hosting/SheetPanel.h"

#include <algorithm>
#include <cmath>
#include <utility>

#include "platform/hosting/FocusRing.h"
#include "platform/layout/Geometry.h"

namespace quorix::hosting {
namespace {

constexpr double dimming = 0.4;     // alpha of the black behind a resting sheet
constexpr double keyStep = 40;      // points that an arrow key scrolls
constexpr double roomAtFocus = 24;  // points between the focused element and the panel's edge

}  // namespace

double SheetPanel::restingHeight() {
  return geometry.contentHeight(content.detents()) + geometry.safeArea.bottom;
}

double SheetPanel::visibleHeight() { return restingHeight() - geometry.safeArea.bottom; }

bool SheetPanel::reveal(double points) {
  if (revealed_ == points) return false;
  revealed_ = points;
  overlay_.reset();
  return true;
}

layout::Rect SheetPanel::frame() const {
  return layout::PixelGrid(content.environment().scale).round(geometry.panel(revealed_));
}

graphics::RGBA SheetPanel::color() const {
  const bool dark = content.environment().appearance == graphics::Appearance::dark;
  return dark ? graphics::RGBA{28, 28, 30, 255} : graphics::RGBA{255, 255, 255, 255};
}

const render::Scene& SheetPanel::lay() {
  const double width = geometry.panelWidth();
  const layout::EdgeInsets insets = geometry.panelInsets();
  const double free = std::max(0.0, width - insets.leading - insets.trailing);
  const double ideal = content.sizeThatFits({free, std::nullopt}).height;
  const double beyond = ideal - visibleHeight();
  const render::Scene& scene =
      content.scene({width, restingHeight() + std::max(0.0, beyond)}, insets);
  scroll.setRange(hasEmbeds(scene) ? 0 : beyond);
  return scene;
}

layout::Point SheetPanel::origin(layout::Point corner) const {
  const layout::PixelGrid grid(content.environment().scale);  // keeps text sharp
  return {corner.x, corner.y - grid.round(scroll.offset())};
}

layout::Point SheetPanel::inContent(layout::Point inWindow) const {
  const layout::Point from = origin(frame().origin);
  return {inWindow.x - from.x, inWindow.y - from.y};
}

std::optional<layout::Rect> SheetPanel::inWindow(
    const std::optional<layout::Rect>& inContent) const {
  if (!inContent) return std::nullopt;
  return inContent->translated(origin(frame().origin));
}

std::optional<layout::Rect> SheetPanel::ring() const {
  const auto element = inWindow(focus.ring());
  if (!element) return std::nullopt;
  // Twice the outset leaves space for the ring beside a rounded corner too.
  const layout::Rect inside = frame().outset(-2 * FocusRing::outset);
  const layout::Rect seen = layout::intersection(*element, inside);
  const bool isSeen = seen.size.width > 0 && seen.size.height > 0;
  return isSeen ? std::optional(seen) : std::nullopt;
}

bool SheetPanel::isScrolledAway(const layout::Rect& inWindow) {
  const double top = frame().top();
  return scroll.range() > 0 &&
         (inWindow.bottom() <= top || inWindow.top() >= top + restingHeight());
}

// Display lists.

void SheetPanel::changed() {
  overlay_.reset();
  atRest_.reset();
  ++revision_;
}

graphics::RGBA SheetPanel::shade() {
  const double resting = restingHeight();
  const double risen = resting > 0 ? std::clamp(revealed_ / resting, 0.0, 1.0) : 0;
  return {0, 0, 0, static_cast<std::uint8_t>(std::lround(255 * dimming * risen))};
}

const render::Scene& SheetPanel::overlay() {
  const unsigned now = revision_;
  if (overlay_ && overlayRevision_ == now) return *overlay_;
  render::Scene whole;
  whole.size = geometry.window;
  whole.items.push_back(render::FillItem{{{}, whole.size}, shade()});
  addTo(whole, frame());
  overlayRevision_ = now;
  return overlay_.emplace(std::move(whole));
}

void SheetPanel::addTo(render::Scene& to, const layout::Rect& frame) {
  render::Scene shown = lay();
  const layout::Point top = origin(frame.origin);
  to.appearance = shown.appearance;
  to.items.push_back(render::FillItem{frame, color(), SheetGeometry::cornerRadius});
  if (scroll.range() > 0) {
    SheetGeometry::cut(shown, {{0, frame.top() - top.y}, {frame.size.width, restingHeight()}});
  }
  if (scroll.offset() > 0) to.items.push_back(render::ClipItem{frame});
  to.append(std::move(shown), top);
  SheetGeometry::roundTop(to, frame);
  addIndicator(to, frame);
}

const render::Scene& SheetPanel::atRest() {
  const unsigned now = revision_;
  if (atRest_ && atRestRevision_ == now) return *atRest_;
  render::Scene alone;
  alone.size = {geometry.panelWidth(), restingHeight()};
  addTo(alone, {{}, alone.size});
  atRestRevision_ = now;
  return atRest_.emplace(std::move(alone));
}

void SheetPanel::addIndicator(render::Scene& to, const layout::Rect& frame) {
  const double opacity = scroll.indicatorOpacity();
  if (opacity == 0) return;
  constexpr double corner = SheetGeometry::cornerRadius;
  const swiftui::Environment& settings = content.environment();
  const bool mirrored = settings.direction == layout::LayoutDirection::rightToLeft;
  const double covered = geometry.panelInsets().trailing;
  const layout::Rect beside = {{frame.left() + (mirrored ? covered : 0), frame.top() + corner},
                               {frame.size.width - covered, visibleHeight() - corner}};
  const layout::Rect bar =
      layout::PixelGrid(settings.scale).round(scroll.indicator(beside, mirrored));
  // The contrast is 3.9:1 with a white panel and higher with a dark one. Guidelines require 3:1.
  const std::uint8_t shade = settings.appearance == graphics::Appearance::dark ? 255 : 0;
  const auto alpha = static_cast<std::uint8_t>(std::lround(opacity * 128));
  const double radius = bar.size.width / 2;
  to.items.push_back(render::FillItem{bar, {shade, shade, shade, alpha}, radius, radius});
}

// Scrolling.

void SheetPanel::scrollToFocus() {
  if (const auto focused = content.focusFrame()) {
    scroll.show(focused->top() - roomAtFocus, focused->bottom() + roomAtFocus, visibleHeight());
  }
}

std::optional<double> SheetPanel::scrollDistance(Key key) {
  const double page = std::max(keyStep, visibleHeight() - keyStep);
  switch (key) {
    case Key::up:
      return -keyStep;
    case Key::down:
      return keyStep;
    case Key::pageUp:
      return -page;
    case Key::pageDown:
      return page;
    case Key::home:
      return -layout::infinity;
    case Key::end:
      return layout::infinity;
    default:
      return std::nullopt;
  }
}

double SheetGeometry::panelWidth() const { return std::min(window.width, widest); }

layout::EdgeInsets SheetGeometry::panelInsets() const {
  const double beside = (window.width - panelWidth()) / 2;
  return {.leading = std::max(0.0, safeArea.leading - beside),
          .bottom = safeArea.bottom,
          .trailing = std::max(0.0, safeArea.trailing - beside)};
}

double SheetGeometry::largest() const {
  return std::max(0.0, window.height - safeArea.top - topGap - safeArea.bottom);
}

double SheetGeometry::contentHeight(const swiftui::PresentationDetents& detents) const {
  double height = largest();
  for (const swiftui::PresentationDetent& detent : detents) {
    const double available = std::max(0.0, window.height - safeArea.top);
    const double wanted = detent.points().value_or(available / 2);
    height = std::min(height, wanted);
  }
  return height;
}

layout::Rect SheetGeometry::panel(double revealed) const {
  const double width = panelWidth();
  return {{(window.width - width) / 2, window.height - revealed}, {width, revealed}};
}

bool hasEmbeds(const render::Scene& scene) {
  return std::ranges::any_of(scene.items, [](const render::Item& item) {
    const auto* embed = std::get_if<render::EmbedItem>(&item);
    return embed && embed->content;
  });
}

namespace {

void round(render::FillItem& fill, const layout::Rect& panel) {
  const layout::Rect& frame = fill.frame;
  const bool covers =
      frame.top() == panel.top() && frame.left() <= panel.left() && frame.right() >= panel.right();
  if (covers) fill.topCornerRadius = std::max(fill.topCornerRadius, SheetGeometry::cornerRadius);
}

void round(render::EmbedItem& embed, const layout::Rect& panel) {
  constexpr double radius = SheetGeometry::cornerRadius;
  const layout::Rect& frame = embed.frame;
  const bool beside =
      frame.left() < panel.left() + radius || frame.right() > panel.right() - radius;
  const double cut = panel.top() + radius - frame.top();
  if (beside && frame.bottom() > panel.top()) {
    embed.topCornerRadius = std::max(embed.topCornerRadius, cut);
  }
}

// Other items never reach the corners, because of the panel's padding.
void round(render::TextItem&, const layout::Rect&) {}
void round(render::ImageItem&, const layout::Rect&) {}
void round(render::StrokeItem&, const layout::Rect&) {}
void round(render::ClipItem&, const layout::Rect&) {}

void clip(render::FillItem& fill, const layout::Rect& inSight) {
  fill.frame = layout::intersection(fill.frame, inSight);
}

// The painter clips these.
void clip(render::TextItem&, const layout::Rect&) {}
void clip(render::ImageItem&, const layout::Rect&) {}
void clip(render::StrokeItem&, const layout::Rect&) {}
void clip(render::ClipItem&, const layout::Rect&) {}
void clip(render::EmbedItem&, const layout::Rect&) {}

}  // namespace

void SheetGeometry::cut(render::Scene& scene, const layout::Rect& inSight) {
  for (render::Item& item : scene.items) {
    std::visit([&](auto& shown) { clip(shown, inSight); }, item);
  }
  for (render::HitArea& area : scene.hitAreas) {
    area.frame = layout::intersection(area.frame, inSight);
  }
  std::erase_if(scene.hitAreas, [](const render::HitArea& area) { return area.frame.isEmpty(); });
}

void SheetGeometry::roundTop(render::Scene& scene, const layout::Rect& panel) {
  for (render::Item& item : scene.items) {
    std::visit([&](auto& shown) { round(shown, panel); }, item);
  }
}

}  // namespace quorix::hosting
