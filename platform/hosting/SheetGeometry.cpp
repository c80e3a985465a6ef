#include "platform/hosting/SheetGeometry.h"

#include <algorithm>

namespace quorix::hosting {

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

// The panel's padding keeps these away from its corners.
void round(render::TextItem&, const layout::Rect&) {}
void round(render::ImageItem&, const layout::Rect&) {}
void round(render::StrokeItem&, const layout::Rect&) {}
void round(render::ClipItem&, const layout::Rect&) {}

}  // namespace

void SheetGeometry::cut(render::Scene& scene, const layout::Rect& inSight) {
  for (render::Item& item : scene.items) {
    auto* fill = std::get_if<render::FillItem>(&item);
    if (fill) fill->frame = layout::intersection(fill->frame, inSight);
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
