#pragma once

#include <concepts>
#include <memory>
#include <string_view>

#include "platform/foundation/Export.h"
#include "platform/swiftui/Represented.h"
#include "platform/uikit/UIViewContent.h"
#include "platform/uikit/UIViewController.h"

namespace quorix::swiftui {

/// A value that makes a controller for one place in a tree. `updateUIViewController(controller)`
/// runs at each evaluation, to hand later values on.
///
///     struct Page {
///       static constexpr std::string_view typeName = "Page";
///       std::string address;
///       std::shared_ptr<PageController> makeUIViewController() const;
///       void updateUIViewController(PageController& controller) const;
///     };
template <class R>
concept UIViewControllerRepresentable = requires(const R& value) {
  { R::typeName } -> std::convertible_to<std::string_view>;
  { value.makeUIViewController() } -> std::convertible_to<std::shared_ptr<uikit::UIViewController>>;
  value.updateUIViewController(*value.makeUIViewController());
};

/// The controller that `value` makes, once for each place in a tree, taking all the room that it is
/// offered; it is let go when it leaves the tree.
template <UIViewControllerRepresentable R>
View represent(R value) {
  using Made = typename decltype(value.makeUIViewController())::element_type;
  return represented(
      {R::typeName,
       [value] {
         return std::make_shared<uikit::UIViewControllerContent>(value.makeUIViewController());
       },
       [value](render::HostedContent& hosted) {
         auto& content = static_cast<uikit::UIViewControllerContent&>(hosted);
         content.updateQuietly(
             [&] { value.updateUIViewController(static_cast<Made&>(*content.controller())); });
       }});
}

/// Shows `controller` itself. In one place at a time.
QUORIX_EXPORT View hosting(std::shared_ptr<uikit::UIViewController> controller);

}  // namespace quorix::swiftui
