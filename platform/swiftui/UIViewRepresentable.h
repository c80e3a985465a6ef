#pragma once

#include <concepts>
#include <functional>
#include <memory>
#include <string_view>

#include "platform/foundation/Export.h"
#include "platform/render/HostedContent.h"
#include "platform/swiftui/View.h"
#include "platform/uikit/UIViewContent.h"
#include "platform/uikit/UIViewController.h"

namespace quorix::swiftui {

/// Content of another toolkit in a view tree.
struct Represented {
  std::string_view name;
  std::function<std::shared_ptr<render::HostedContent>()> make;  ///< once for each place in a tree
  /// Called at each evaluation, also the first one; may be empty.
  std::function<void(render::HostedContent&)> update = {};
};

QUORIX_EXPORT View represented(Represented content);

/// A value that makes a view of the imperative toolkit for one place in a tree. To pass later
/// values on, define `updateUIView(view)`, which is called at each evaluation.
///
///     struct Box {
///       static constexpr std::string_view typeName = "Box";
///       double border;
///       auto makeUIView() const { return std::make_shared<uikit::UIView>(); }
///       void updateUIView(uikit::UIView& view) const { view.layer().setBorderWidth(border); }
///     };
template <class R>
concept UIViewRepresentable = requires(const R& value) {
  { R::typeName } -> std::convertible_to<std::string_view>;
  { value.makeUIView() } -> std::convertible_to<std::shared_ptr<uikit::UIView>>;
};

/// The view that `value` makes, once for each place in a tree. It is released when the place leaves
/// the tree.
template <UIViewRepresentable R>
View represent(R value) {
  Represented content{
      R::typeName,
      [value] { return std::make_shared<uikit::UIViewContent>(value.makeUIView()); },
      {}};
  if constexpr (requires { value.updateUIView(*value.makeUIView()); }) {
    using Made = typename decltype(value.makeUIView())::element_type;
    content.update = [value](render::HostedContent& hosted) {
      auto& shown = static_cast<uikit::UIViewContent&>(hosted);
      shown.updateQuietly([&] { value.updateUIView(static_cast<Made&>(*shown.view())); });
    };
  }
  return represented(std::move(content));
}

/// Shows an existing imperative view on surfaces for declarative views. A view may be in one place
/// at a time. A null view shows nothing.
///
///     View box = hosting(std::make_shared<uikit::UIView>());
QUORIX_EXPORT View hosting(std::shared_ptr<uikit::UIView> view);

/// A value that makes a controller for one place in a tree. `updateUIViewController(controller)` is
/// called at each evaluation, to pass later values on.
///
///     struct Page {
///       static constexpr std::string_view typeName = "Page";
///       bool hidden;
///       auto makeUIViewController() const { return std::make_shared<uikit::UIViewController>(); }
///       void updateUIViewController(uikit::UIViewController& controller) const {
///         controller.view()->setHidden(hidden);
///       }
///     };
template <class R>
concept UIViewControllerRepresentable = requires(const R& value) {
  { R::typeName } -> std::convertible_to<std::string_view>;
  { value.makeUIViewController() } -> std::convertible_to<std::shared_ptr<uikit::UIViewController>>;
  value.updateUIViewController(*value.makeUIViewController());
};

/// The controller that `value` makes, once for each place in a tree. It takes the whole proposed
/// size. It is released when the place leaves the tree.
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

/// Shows an existing controller. It may be in one place at a time.
QUORIX_EXPORT View hosting(std::shared_ptr<uikit::UIViewController> controller);

}  // namespace quorix::swiftui
