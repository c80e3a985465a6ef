#pragma once

#include <string_view>

#include "QuorixWidgets/score/ScoreWidgetStyle.h"
#include "platform/foundation/Export.h"
#include "platform/swiftui/View.h"

namespace quorix {

/// Builds score widgets. Main thread.
struct QUORIX_EXPORT ScoreWidgetBuilder {
  ScoreWidgetBuilder() = delete;

  /// The score row of one shopper, ready to be placed on a surface. Each call makes a new one; the
  /// builder keeps no state.
  ///
  /// `clientId` is the retailer's, `locale` a language code ("en", "es"), `token` the shopper's
  /// token as the widget service issued it. The result is an empty view, which takes no space, for
  /// an empty client id, an empty token, a token that cannot be read and one whose return rate does
  /// not fit 64 bits (a score of 1e18). No error is reported.
  ///
  ///     auto row = ScoreWidgetBuilder::buildSwiftUIScoreWidgetView(
  ///         "my-shop", "en", shopperToken, {std::nullopt, std::nullopt});
  static swiftui::View buildSwiftUIScoreWidgetView(std::string_view clientId,
                                                   std::string_view locale, std::string_view token,
                                                   const ScoreWidgetStyle& style);
};

/// Fetches the server's texts of score widgets for `locale`, as long as none are kept. For five
/// minutes rows with the same locale have them from memory, and from their first frame on, instead
/// of from the server. A failure is not reported: rows then fetch for themselves. Any thread.
///
/// With Qt, the network is there from the first view item on, or from `qt::installEngine` (in
/// `qt/Engine.h`): until then the fetch waits.
///
///     prefetch("fr");  // as soon as the shop knows its shopper's language
QUORIX_EXPORT void prefetch(std::string_view locale);

}  // namespace quorix
