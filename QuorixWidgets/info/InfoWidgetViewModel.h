#pragma once

#include <optional>
#include <string>

#include "QuorixWidgets/data/UserDetails.h"
#include "QuorixWidgets/localization/StyleFont.h"
#include "QuorixWidgets/localization/SwiftUIStyleConfiguration.h"
#include "platform/combine/ObservableObject.h"
#include "platform/swiftui/Font.h"
#include "platform/swiftui/Text.h"

namespace quorix {

/// What a declarative info widget shows. Texts are looked up anew each time they are asked for;
/// nothing is published. Main thread.
class InfoWidgetViewModel final : public combine::ObservableObject {
 public:
  InfoWidgetViewModel(std::optional<std::string> shopper, std::string languageCode,
                      SwiftUIStyleConfiguration style)
      : name(std::move(shopper)),
        locale(std::move(languageCode)),
        styleConfiguration(std::move(style)) {}

  const std::optional<std::string> name;  ///< the shopper's, for the overlay's heading
  const std::string locale;               ///< a language code
  const SwiftUIStyleConfiguration styleConfiguration;
  /// Present, the widget speaks of the shopper's own returns.
  std::optional<UserDetails> userDetails;

  /// 13 points.
  const swiftui::Font& regularFont() const;
  /// 13 points.
  const swiftui::Font& semiBoldFont() const;

  /// The general title in its fonts, with its figure in semi-bold. A string table whose title is
  /// nothing but the figure stops the process.
  swiftui::Text getInfoTitle() const;
  /// The title about the shopper's own returns, with no font of its own; absent without details.
  std::optional<swiftui::Text> getTitle() const;

 private:
  mutable StyleFont regularFont_;
  mutable StyleFont semiBoldFont_;
};

}  // namespace quorix
