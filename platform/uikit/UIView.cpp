#include "platform/uikit/UIView.h"

#include <algorithm>
#include <utility>

#include "platform/foundation/Error.h"
#include "platform/uikit/UIViewContent.h"

namespace quorix::uikit {
namespace {

/// Stores `value`. Returns whether it changed.
template <class T>
bool store(T& stored, T value) {
  if (stored == value) return false;
  stored = std::move(value);
  return true;
}

}  // namespace

UIView::UIView(layout::Rect frame) : frame_(frame) {}

UIView::~UIView() {
  for (const auto& view : subviews_) view->superview_ = nullptr;
}

std::shared_ptr<UIView> UIView::superview() const {
  return superview_ ? superview_->weak_from_this().lock() : nullptr;
}

bool UIView::isDescendant(const UIView& view) const {
  const UIView* above = this;
  while (above != nullptr && above != &view) above = above->superview_;
  return above != nullptr;
}

void UIView::addSubview(std::shared_ptr<UIView> view) {
  insertSubview(std::move(view), subviews_.size());
}

void UIView::insertSubview(std::shared_ptr<UIView> view, std::size_t index) {
  if (!view || isDescendant(*view)) {
    foundation::fatalError("Only another view that does not hold this one can be its subview",
                           "UIView");
  }
  if (view->superview_ == this) {
    std::erase(subviews_, view);  // only its index changes
  } else {
    view->removeFromSuperview();
  }
  const std::size_t place = std::min(index, subviews_.size());
  view->superview_ = this;
  subviews_.insert(subviews_.begin() + static_cast<std::ptrdiff_t>(place), std::move(view));
  setNeedsLayout();
}

void UIView::removeFromSuperview() {
  if (superview_ == nullptr) return;
  UIView& left = *std::exchange(superview_, nullptr);
  left.dropConstraintsInto(*this);
  const auto kept = weak_from_this().lock();
  std::erase_if(left.subviews_, [this](const auto& view) { return view.get() == this; });
  left.setNeedsLayout();
}

void UIView::dropConstraintsInto(const UIView& leaving) {
  std::erase_if(constraints_, [&](const ActiveLayoutConstraint& constraint) {
    return constraint.firstItem == &leaving || constraint.secondItem == &leaving;
  });
}

void UIView::setFrame(const layout::Rect& frame) {
  if (store(frame_, frame)) setNeedsLayout();
}

void UIView::setTranslatesAutoresizingMaskIntoConstraints(bool translates) {
  if (store(translatesMask_, translates)) setNeedsLayout();
}

void UIView::setBackgroundColor(UIColor::Ref color) {
  if (store(backgroundColor_, std::move(color))) setNeedsLayout();
}

void UIView::setHidden(bool hidden) {
  if (store(hidden_, hidden)) setNeedsLayout();
}

void UIView::setOpaque(bool opaque) {
  if (store(opaque_, opaque)) setNeedsLayout();
}

void UIView::setUserInteractionEnabled(bool enabled) {
  if (store(userInteractionEnabled_, enabled)) setNeedsLayout();
}

void UIView::addGestureRecognizer(std::shared_ptr<UITapGestureRecognizer> recognizer) {
  ownExtras().gestureRecognizers.push_back(std::move(recognizer));
  setNeedsLayout();
}

void UIView::setAccessibilityLabel(std::optional<std::string> label) {
  if (label == accessibilityLabel()) return;
  ownExtras().accessibilityLabel = std::move(label);
  setNeedsLayout();
}

void UIView::setAccessibilityTraits(UIAccessibilityTraits traits) {
  if (store(accessibilityTraits_, traits)) setNeedsLayout();
}

std::optional<layout::Size> UIView::intrinsicContentSize(std::optional<double>,
                                                         const LayoutContext&) const {
  return std::nullopt;
}

void UIView::draw(const layout::Rect& frame, const LayoutContext& context,
                  std::vector<render::Item>& items) const {
  if (!backgroundColor_) return;
  items.push_back(render::FillItem{frame, backgroundColor_->resolve(context.display.appearance)});
}

std::optional<render::AccessibilityElement> UIView::describe(std::string_view) const {
  return std::nullopt;
}

void UIView::setNeedsLayout() const {
  for (const UIView* view = this; view != nullptr; view = view->superview_) {
    if (view->shownBy_) view->shownBy_->viewChanged();
  }
}

const UIView::Extras& UIView::extras() const {
  static const Extras& none = *new Extras(*new UIView);
  return extras_ ? *extras_ : none;
}

UIView::Extras& UIView::ownExtras() {
  if (!extras_) extras_ = std::make_unique<Extras>(*this);
  return *extras_;
}

void CALayer::setBorderWidth(double width) {
  borderWidth_ = width;
  view_.setNeedsLayout();
}

void CALayer::setBorderColor(UIColor::Ref color) {
  borderColor_ = std::move(color);
  view_.setNeedsLayout();
}

}  // namespace quorix::uikit
