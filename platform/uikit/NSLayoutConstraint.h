#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <vector>

#include "platform/foundation/Export.h"

namespace quorix::uikit {

class UIView;

/// An edge or a length of a view. Leading and trailing follow the reading direction.
enum class LayoutAttribute : std::uint8_t {
  left,
  right,
  leading,
  trailing,
  top,
  bottom,
  width,
  height
};

enum class LayoutRelation : std::uint8_t { equal, lessThanOrEqual, greaterThanOrEqual };

/// Relates an edge or a length of a view to another one, or to a constant, in points. It acts on
/// layout rectangles, from its activation until one of its views is removed from the other.
///
/// There is no general solver: a constraint joins a view and its superview, or two subviews of one
/// view, and lengths that constraints leave open come from the content.
struct QUORIX_EXPORT NSLayoutConstraint {
  std::weak_ptr<UIView> firstItem;
  LayoutAttribute firstAttribute = LayoutAttribute::left;
  LayoutRelation relation = LayoutRelation::equal;
  std::weak_ptr<UIView> secondItem;
  std::optional<LayoutAttribute> secondAttribute;  ///< absent: the constant alone
  double constant = 0;

  /// Activates the constraints. One that joins other views than described above, or attributes that
  /// cannot be compared, stops the process. Main thread.
  static void activate(const std::vector<NSLayoutConstraint>& constraints);

  /// The view that stores it while it is active: the superview of the other one, or of both. Null
  /// when it cannot be activated.
  UIView* holder() const;
};

/// An active constraint in the view that stores it. It relates that view and its subviews, which
/// live at least as long.
struct ActiveLayoutConstraint {
  UIView* firstItem;
  UIView* secondItem;  ///< null: the constant alone
  double constant;
  LayoutAttribute firstAttribute;
  LayoutAttribute secondAttribute;  ///< only with a second item
  LayoutRelation relation;
};

/// One edge or length of a view, from which constraints are made.
///
///     #include <platform/uikit/UIView.h>
///     auto box = std::make_shared<UIView>(), inner = std::make_shared<UIView>();
///     box->addSubview(inner);
///     NSLayoutConstraint::activate({inner->topAnchor().equalTo(box->topAnchor(), 16),
///                                   inner->widthAnchor().equalTo(48)});
class NSLayoutAnchor {
 public:
  NSLayoutAnchor(std::weak_ptr<UIView> view, LayoutAttribute attribute)
      : view_(std::move(view)), attribute_(attribute) {}

  NSLayoutConstraint equalTo(const NSLayoutAnchor& other, double constant = 0) const {
    return to(LayoutRelation::equal, other, constant);
  }
  NSLayoutConstraint lessThanOrEqualTo(const NSLayoutAnchor& other, double constant = 0) const {
    return to(LayoutRelation::lessThanOrEqual, other, constant);
  }
  /// For widths and heights.
  NSLayoutConstraint equalTo(double constant) const {
    return {view_, attribute_, LayoutRelation::equal, {}, std::nullopt, constant};
  }

 private:
  NSLayoutConstraint to(LayoutRelation relation, const NSLayoutAnchor& other,
                        double constant) const {
    return {view_, attribute_, relation, other.view_, other.attribute_, constant};
  }

  std::weak_ptr<UIView> view_;
  LayoutAttribute attribute_;
};

}  // namespace quorix::uikit
