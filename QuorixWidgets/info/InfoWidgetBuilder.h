#pragma once

#include <memory>
#include <string_view>

#include "QuorixWidgets/info/InfoWidgetStyle.h"
#include "platform/foundation/Export.h"
#include "platform/swiftui/View.h"
#include "platform/uikit/UIView.h"

namespace quorix {

/// Builds info widgets: a sentence on how returns count, and a link to a page with more. Main
/// thread.
///
/// `locale` is a language code ("en", "nb"). A language without texts falls back to English.
/// Each call makes a new widget; the builder keeps no state.
struct QUORIX_EXPORT InfoWidgetBuilder {
  InfoWidgetBuilder() = delete;

  /// The declarative widget. A tap anywhere on it opens the page in a sheet.
  ///
  ///     #include <qt/quick/ViewItem.h>
  ///     auto view = InfoWidgetBuilder::buildSwiftUIInfoWidgetView(
  ///         "en", {std::nullopt, std::nullopt, std::nullopt, true});
  ///     new qt::ViewItem(view, productPage);  // or any other surface
  static swiftui::View buildSwiftUIInfoWidgetView(std::string_view locale,
                                                  const InfoWidgetStyle& style);

  /// The imperative widget. A tap on its link opens the page over the app's top-most screen. Uses
  /// only the faces of `style`: the background is the library's own and there is no border. Never
  /// null.
  ///
  ///     #include <platform/swiftui/UIViewRepresentable.h>
  ///     auto widget = InfoWidgetBuilder::buildUIKitInfoWidgetView(
  ///         "en", {"OpenSans-Regular", "OpenSans-SemiBold", std::nullopt, false});
  ///     new qt::ViewItem(swiftui::hosting(widget), productPage);  // or any other surface, or
  ///     auto parent = std::make_shared<uikit::UIView>();
  ///     parent->addSubview(widget);  // in a view of the imperative toolkit
  static std::shared_ptr<uikit::UIView> buildUIKitInfoWidgetView(std::string_view locale,
                                                                 const InfoWidgetStyle& style);
};

}  // namespace quorix
