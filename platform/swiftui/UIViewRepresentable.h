#pragma once

#include <concepts>
#include <memory>
#include <string_view>

#include "platform/foundation/Export.h"
#include "platform/swiftui/Represented.h"
#include "platform/uikit/UIViewContent.h"

namespace quorix::swiftui {

/// A value that makes a view of the imperative toolkit for one place in a tree. With
/// `updateUIView(view)` it also hands later values on: that runs at each evaluation.
///
///     #include <platform/uikit/UILabel.h>
///     struct Days {
///       static constexpr std::string_view typeName = "Days";
///       int count;
///       auto makeUIView() const { return std::make_shared<uikit::UILabel>(); }
///       void updateUIView(uikit::UILabel& label) const { label.setText(std::to_string(count)); }
///     };
template <class R>
concept UIViewRepresentable = requires(const R& value) {
  { R::typeName } -> std::convertible_to<std::string_view>;
  { value.makeUIView() } -> std::convertible_to<std::shared_ptr<uikit::UIView>>;
};

/// The view that `value` makes, once for each place in a tree; it is let go when it leaves the
/// tree.
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

/// Shows `view` itself, so that every surface that shows a declarative view can show an imperative
/// one. In one place at a time. A null view shows nothing.
///
///     View label = hosting(std::make_shared<uikit::UILabel>());
QUORIX_EXPORT View hosting(std::shared_ptr<uikit::UIView> view);

}  // namespace quorix::swiftui
