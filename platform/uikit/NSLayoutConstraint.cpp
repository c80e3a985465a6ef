#include "platform/uikit/NSLayoutConstraint.h"

#include "platform/foundation/Error.h"
#include "platform/uikit/UIView.h"

namespace quorix::uikit {
namespace {

enum class Kind : std::uint8_t { sideEdge, readingEdge, verticalEdge, width, height };

Kind kindOf(LayoutAttribute attribute) {
  constexpr Kind kinds[] = {Kind::sideEdge,    Kind::sideEdge,     Kind::readingEdge,
                            Kind::readingEdge, Kind::verticalEdge, Kind::verticalEdge,
                            Kind::width,       Kind::height};
  return kinds[static_cast<int>(attribute)];
}

/// Edges of one kind are comparable, and lengths on one axis; with a constant, only lengths are.
bool areComparable(LayoutAttribute first, std::optional<LayoutAttribute> second) {
  return second ? kindOf(first) == kindOf(*second) : kindOf(first) >= Kind::width;
}

}  // namespace

void NSLayoutConstraint::activate(const std::vector<NSLayoutConstraint>& constraints) {
  for (const NSLayoutConstraint& constraint : constraints) {
    UIView* holder = constraint.holder();
    if (holder == nullptr) {
      foundation::fatalError(
          "A constraint joins comparable attributes of a view and its superview, or of two "
          "subviews of one view",
          "NSLayoutConstraint");
    }
    holder->constraints_.push_back(
        {constraint.firstItem.lock().get(), constraint.secondItem.lock().get(), constraint.constant,
         constraint.firstAttribute, constraint.secondAttribute.value_or(LayoutAttribute::left),
         constraint.relation});
    holder->setNeedsLayout();
  }
}

UIView* NSLayoutConstraint::holder() const {
  const auto first = firstItem.lock();
  const auto second = secondItem.lock();
  const bool whole = first && (second != nullptr) == secondAttribute.has_value();
  if (!whole || !areComparable(firstAttribute, secondAttribute)) return nullptr;
  if (!second || second == first || second->superview_ == first.get()) return first.get();
  if (first->superview_ == second.get() || first->superview_ == second->superview_) {
    return first->superview_;
  }
  return nullptr;
}

}  // namespace quorix::uikit
