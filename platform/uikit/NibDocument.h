#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/foundation/Error.h"
#include "platform/layout/Geometry.h"
#include "platform/uikit/NSLayoutConstraint.h"
#include "platform/uikit/UIColor.h"
#include "platform/uikit/UIFont.h"
#include "platform/uikit/UIView.h"

namespace quorix::uikit {

/// The contents of an interface file, read once to make views from it many times. Refers to views
/// by their index in `views`. Immutable once read; any thread.
struct NibDocument {
  /// The line of the file, for messages.
  using Line = std::ptrdiff_t;

  struct Label {
    std::string text;
    UIFont::Ref font;
    UIColor::Ref textColor;
    int numberOfLines = 1;
  };

  /// A view; a label when `label` is set.
  struct View {
    std::optional<Label> label;
    layout::Rect frame;
    UIColor::Ref backgroundColor;
    std::optional<std::string> accessibilityLabel;
    UIAccessibilityTraits accessibilityTraits = UIAccessibilityTraits::none;
    bool opaque = true;
    bool hidden = false;
    bool userInteractionEnabled = true;
    bool translatesMask = true;
    std::optional<std::size_t> superview;  ///< comes earlier in `views`
  };

  struct Constraint {
    Line line;
    std::size_t holder;
    std::optional<std::size_t> firstItem;
    LayoutAttribute firstAttribute;
    LayoutRelation relation;
    std::optional<std::size_t> secondItem;
    std::optional<LayoutAttribute> secondAttribute;
    double constant;
  };

  struct Outlet {
    Line line;
    std::string property;
    std::optional<std::size_t> destination;
  };

  struct Owner {
    Line line;
    std::string className;
  };

  std::vector<Owner> owners;  ///< the tool writes one
  std::vector<View> views;
  std::vector<Constraint> constraints;
  std::vector<Outlet> outlets;
};

/// Reads an interface file. An error's description begins with the line: "7: ...". Any thread.
foundation::Result<NibDocument> readNib(std::string_view xml);

}  // namespace quorix::uikit
