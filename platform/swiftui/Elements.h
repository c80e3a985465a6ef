#pragma once

#include <cstddef>
#include <functional>
#include <initializer_list>
#include <optional>
#include <string_view>
#include <vector>

#include "platform/foundation/Bundle.h"
#include "platform/layout/Geometry.h"
#include "platform/swiftui/Resource.h"
#include "platform/swiftui/View.h"

namespace quorix::swiftui {

/// A list of views, valid during the call that it is passed to.
class Views {
 public:
  Views(std::initializer_list<View> views) : count_(views.size()) { first_ = views.begin(); }
  Views(const std::vector<View>& views) : first_(views.data()), count_(views.size()) {}

  const View* begin() const { return first_; }
  const View* end() const { return first_ + count_; }

 private:
  const View* first_;
  std::size_t count_;
};

// The elements of views. Without a spacing, the platform's default applies.

View HStack(layout::VerticalAlignment alignment, std::optional<double> spacing, Views children);
View VStack(layout::HorizontalAlignment alignment, std::optional<double> spacing, Views children);

/// Takes the remaining length along its stack's axis. Without a minimum, the default spacing
/// applies.
View Spacer(std::optional<double> minLength = std::nullopt);

/// A hairline across its stack.
View Divider();

/// An image of the bundle's asset catalog at its natural size; an unknown name shows nothing.
View Image(std::string_view name, foundation::Bundle::Ref bundle);

/// Runs `action` when it is tapped. Assistive technology gets one element with the label's text, or
/// with the image's name if the label is only an image.
View Button(foundation::Action action, View label);

/// The image set that `resource` names.
View Image(const ImageResource& resource);

/// Combines several views into one. The enclosing stack lays them out as its own children.
View Group(Views children);

/// The branch that `condition` chose of two. A switch to the other branch resets the states.
View Conditional(bool condition, View chosen);

/// The view that `make` returns. `make` runs when the view is evaluated.
View Lazy(std::function<View()> make);

}  // namespace quorix::swiftui
