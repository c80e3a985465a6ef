#include "platform/uikit/NibInstance.h"

#include <utility>

namespace quorix::uikit {
namespace {

std::shared_ptr<UILabel> labelOf(const NibDocument::Label& said) {
  auto label = std::make_shared<UILabel>();
  label->setText(said.text);
  if (said.font) label->setFont(said.font);
  if (said.textColor) label->setTextColor(said.textColor);
  label->setNumberOfLines(said.numberOfLines);
  return label;
}

std::shared_ptr<UIView> viewOf(const NibDocument::View& said) {
  auto view = said.label ? labelOf(*said.label) : std::make_shared<UIView>();
  view->setFrame(said.frame);
  view->setBackgroundColor(said.backgroundColor);
  view->setOpaque(said.opaque);
  view->setHidden(said.hidden);
  view->setUserInteractionEnabled(said.userInteractionEnabled);
  view->setTranslatesAutoresizingMaskIntoConstraints(said.translatesMask);
  view->setAccessibilityLabel(said.accessibilityLabel);
  view->setAccessibilityTraits(said.accessibilityTraits);
  return view;
}

std::string refusal(NibDocument::Line line, const std::string& why) {
  return std::to_string(line) + ": " + why;
}

/// The outlet of that name that takes such a view, or null.
template <class Places>
auto* placeFor(const std::string& property, Places& places) {
  const auto found = places.find(property);
  return found == places.end() ? nullptr : found->second;
}

}  // namespace

NibInstance::NibInstance(const NibDocument& document) : document_(document) {
  for (const NibDocument::View& said : document.views) {
    views_.push_back(viewOf(said));
    if (said.superview) views_[*said.superview]->addSubview(views_.back());
  }
}

std::optional<std::string> NibInstance::connect(std::string_view owner,
                                                const Nib::Outlets& outlets) {
  for (const NibDocument::Owner& said : document_.owners) {
    if (said.className != owner) return refusal(said.line, "the owner is no " + std::string(owner));
  }
  if (auto why = constrain()) return why;
  std::vector<std::function<void()>> connections;
  for (const NibDocument::Outlet& outlet : document_.outlets) {
    const auto target = view(outlet.destination);
    const auto label = std::dynamic_pointer_cast<UILabel>(target);
    auto* forView = target ? placeFor(outlet.property, outlets.views) : nullptr;
    auto* forLabel = label ? placeFor(outlet.property, outlets.labels) : nullptr;
    if (forView == nullptr && forLabel == nullptr) {
      return refusal(outlet.line, "no outlet '" + outlet.property + "' for this view");
    }
    connections.push_back([=] {
      if (forView != nullptr) *forView = target;
      if (forLabel != nullptr) *forLabel = label;
    });
  }
  for (const auto& connection : connections) connection();
  return std::nullopt;
}

std::optional<std::string> NibInstance::constrain() {
  for (const NibDocument::Constraint& said : document_.constraints) {
    const NSLayoutConstraint constraint{view(said.firstItem),  said.firstAttribute,  said.relation,
                                        view(said.secondItem), said.secondAttribute, said.constant};
    if (constraint.holder() != views_[said.holder].get()) {
      return refusal(said.line, "a constraint does not join its view and what is in it");
    }
    NSLayoutConstraint::activate({constraint});
  }
  return std::nullopt;
}

Nib::Views NibInstance::outermost() const {
  Nib::Views outermost;
  for (std::size_t i = 0; i < views_.size(); ++i) {
    if (!document_.views[i].superview) outermost.push_back(views_[i]);
  }
  return outermost;
}

}  // namespace quorix::uikit
