#include "platform/uikit/UIViewContent.h"

#include <algorithm>
#include <utility>
#include <variant>

#include "platform/layout/Geometry.h"
#include "platform/uikit/UIViewController.h"
#include "platform/uikit/ViewLayout.h"

namespace quorix::uikit {
namespace {

using layout::Rect;

/// Moves a text to whole pixels. Its size is not rounded, because that could break its lines
/// differently.
Rect onPixels(const layout::PixelGrid& grid, const render::TextItem& item) {
  return {{grid.round(item.frame.left()), grid.round(item.frame.top())}, item.frame.size};
}

Rect onPixels(const layout::PixelGrid& grid, const auto& item) { return grid.round(item.frame); }

/// Runs the recognizers of `view`, while it exists.
foundation::Action tapOn(const UIView& view) {
  return [view = view.weak_from_this()] {
    const auto tapped = view.lock();
    if (!tapped) return;
    const auto recognizers = tapped->gestureRecognizers();
    for (const auto& recognizer : recognizers) recognizer->recognize();
  };
}

/// Turns laid-out views into a display list.
class ViewScene {
 public:
  explicit ViewScene(const LayoutContext& context)
      : context_(context), grid_(context.display.scale) {}

  render::Scene build(const UIView& root) {
    scene_.size = root.frame().size;
    scene_.appearance = context_.display.appearance;
    Surroundings around;
    around.visible = root.frame();
    add(root, std::move(around));
    return std::move(scene_);
  }

 private:
  /// Inherited from the views around a view.
  struct Surroundings {
    layout::Point origin;
    Rect visible;                ///< touches outside do not reach the view
    bool touched = true;         ///< all enclosing views take touches
    foundation::Action action;   ///< of the nearest enclosing view with a recognizer
    std::size_t areasBelow = 0;  ///< number of hit areas up to that view's own
  };

  void add(const UIView& view, Surroundings around) {
    if (view.isHidden()) return;
    const Rect exact = view.frame().translated(around.origin);
    const Rect frame = grid_.round(exact);
    around.origin = exact.origin;
    around.visible = layout::intersection(around.visible, frame);
    around.touched = around.touched && view.isUserInteractionEnabled();
    paint(view, exact);
    takeTouches(view, around);
    describe(view, frame, around);
    for (const auto& subview : view.subviews()) add(*subview, around);
    const CALayer& layer = view.layer();
    if (layer.borderWidth() <= 0) return;
    const auto color = layer.borderColor() ? layer.borderColor()->resolve(scene_.appearance)
                                           : graphics::RGBA{0, 0, 0, 255};
    scene_.items.push_back(render::StrokeItem{frame, color, layer.borderWidth()});
  }

  void paint(const UIView& view, const Rect& frame) {
    const std::size_t before = scene_.items.size();
    view.draw(frame, context_, scene_.items);
    for (std::size_t i = before; i < scene_.items.size(); ++i) {
      std::visit([this](auto& item) { item.frame = onPixels(grid_, item); }, scene_.items[i]);
    }
  }

  /// Adds the hit area of `view`. A view that takes touches and has no recognizer runs the action
  /// of the enclosing views, and covers the hit areas of its siblings below it.
  void takeTouches(const UIView& view, Surroundings& around) {
    if (!around.touched || around.visible.isEmpty()) return;
    auto& areas = scene_.hitAreas;
    if (!view.gestureRecognizers().empty()) {
      around.action = tapOn(view);
      areas.push_back({around.visible, around.action});
      around.areasBelow = areas.size();
      return;
    }
    const auto beside = areas.begin() + static_cast<std::ptrdiff_t>(around.areasBelow);
    const bool covers = std::any_of(beside, areas.end(), [&](const render::HitArea& area) {
      return !layout::intersection(area.frame, around.visible).isEmpty();
    });
    if (!covers) return;
    areas.push_back({around.visible, around.action ? around.action : foundation::Action([] {})});
  }

  void describe(const UIView& view, const Rect& frame, const Surroundings& around) {
    auto element = view.describe(context_.display.language);
    if (view.accessibilityLabel()) {
      if (!element) element.emplace();
      element->label = *view.accessibilityLabel();
    }
    if (!element) return;
    element->frame = frame;
    element->action = around.action;
    if (element->action) element->role = render::Role::button;
    switch (view.accessibilityTraits()) {
      case UIAccessibilityTraits::none:
        break;
      case UIAccessibilityTraits::button:
        element->role = render::Role::button;
        break;
      case UIAccessibilityTraits::link:
        element->role = render::Role::link;
        break;
      case UIAccessibilityTraits::header:
        element->role = render::Role::heading;
        break;
    }
    // An image without a label is decoration.
    if (element->label.empty() && !element->action) return;
    scene_.accessibility.push_back(std::move(*element));
  }

  const LayoutContext& context_;
  layout::PixelGrid grid_;
  render::Scene scene_;
};

}  // namespace

UIViewContent::UIViewContent(std::shared_ptr<UIView> view) { show(std::move(view)); }

UIViewContent::~UIViewContent() {
  if (view_) view_->endShownBy(this);
}

void UIViewContent::show(std::shared_ptr<UIView> view) {
  if (view == view_) return;
  if (view_) view_->endShownBy(this);
  view_ = std::move(view);
  if (view_) view_->setShownBy(this);
  tellChanged();
}

layout::Size UIViewContent::sizeThatFits(layout::ProposedSize proposal, text::TextEngine& engine,
                                         double scale) {
  if (!view_) return {};
  const LayoutContext context{engine, {.scale = scale}};
  return ViewLayout(context).sizeThatFits(*view_, proposal);
}

render::Scene UIViewContent::scene(layout::Size size, const render::Display& display,
                                   text::TextEngine& engine) {
  if (!view_) return {};
  const LayoutContext context{engine, display};
  ViewLayout(context).layOut(*view_, {{}, size});
  return ViewScene(context).build(*view_);
}

UIViewControllerContent::UIViewControllerContent(std::shared_ptr<UIViewController> controller)
    : controller_(std::move(controller)) {}

void UIViewControllerContent::show(std::shared_ptr<UIViewController> controller) {
  if (controller == controller_) return;
  controller_ = std::move(controller);
  content_.reset();
  tellChanged();
}

layout::Size UIViewControllerContent::sizeThatFits(layout::ProposedSize proposal, text::TextEngine&,
                                                   double) {
  return {proposal.width.value_or(0), proposal.height.value_or(0)};
}

render::Scene UIViewControllerContent::scene(layout::Size size, const render::Display& display,
                                             text::TextEngine& engine) {
  if (!controller_) return {};
  if (!content_) {
    content_.emplace(controller_->view());
    content_->onChange([this] { tellChanged(); });
  }
  return content_->scene(size, display, engine);
}

}  // namespace quorix::uikit
