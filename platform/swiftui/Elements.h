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

/// Views in order, for as long as the call that takes them.
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

// The elements that views are made of. A missing spacing is the platform's default.

View HStack(layout::VerticalAlignment alignment, std::optional<double> spacing, Views children);
View VStack(layout::HorizontalAlignment alignment, std::optional<double> spacing, Views children);

/// Takes what is left along its stack's axis; a missing minimum is the default spacing.
View Spacer(std::optional<double> minLength = std::nullopt);

/// A hairline across its stack.
View Divider();

/// An image of the bundle's asset catalog at its natural size; an unknown name shows nothing.
View Image(std::string_view name, foundation::Bundle::Ref bundle);

/// Does `action` when it is tapped. To assistive technology it is one element, called what its
/// label says; a label that is only an image is called by the image's name.
View Button(foundation::Action action, View label);

/// The image of that asset.
View Image(const ImageResource& resource);

/// Several views where one is expected: the enclosing stack takes them as its own children.
View Group(Views children);

/// The branch that `condition` chose of two; a switch to the other starts that one's state afresh.
View Conditional(bool condition, View chosen);

/// The view that `make` returns, made when it is shown.
View Lazy(std::function<View()> make);

}  // namespace quorix::swiftui
