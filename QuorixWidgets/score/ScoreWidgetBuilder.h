#pragma once

#include <string_view>

#include "QuorixWidgets/score/ScoreWidgetStyle.h"
#include "platform/foundation/Export.h"
#include "platform/swiftui/View.h"

namespace quorix {

/// Builds score widgets. Main thread.
struct QUORIX_EXPORT ScoreWidgetBuilder {
  ScoreWidgetBuilder() = delete;

  /// The score row of one shopper, ready for a surface. Each call makes a new one; the builder
  /// keeps no state.
  ///
  /// `clientId` is the retailer's, `locale` a language code ("en", "es"), `token` the shopper's
  /// token as the widget service issued it. The result is an empty view, which takes no space, if
  /// the client id or the token is empty, the token cannot be read, or its return rate does not fit
  /// 64 bits (a score of 1e18). No error is reported.
  ///
  ///     auto row = ScoreWidgetBuilder::buildSwiftUIScoreWidgetView(
  ///         "my-shop", "en", shopperToken, {std::nullopt, std::nullopt});
  static swiftui::View buildSwiftUIScoreWidgetView(std::string_view clientId,
                                                   std::string_view locale, std::string_view token,
                                                   const ScoreWidgetStyle& style);
};

/// Fetches the server's texts of score widgets for `locale`, unless they are kept already. For five
/// minutes, rows with this locale show them from the first frame on and do not ask the server. A
/// failure is not reported; then each row fetches its own texts. Any thread.
///
/// With Qt, the network is available after the first view item, or after `qt::installEngine` (in
/// `qt/Engine.h`). Until then the fetch waits.
///
///     prefetch("fr");  // as soon as the shop knows its shopper's language
QUORIX_EXPORT void prefetch(std::string_view locale);

}  // namespace quorix
