#pragma once

#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "QuorixWidgets/data/UserDetails.h"
#include "QuorixWidgets/localization/StyleConfiguration.h"
#include "platform/combine/ObservableObject.h"
#include "platform/swiftui/Text.h"

namespace quorix {

/// The texts and fonts of a declarative info widget. Texts are looked up at each call; the model
/// publishes no changes. Main thread.
class InfoWidgetViewModel final : public combine::ObservableObject {
 public:
  const std::optional<std::string> name;  ///< the shopper's, for the overlay's heading
  const std::string locale;               ///< a language code
  const StyleFont regularFont;            ///< 13 points
  const StyleFont semiBoldFont;           ///< 13 points
  const SwiftUIStyleConfiguration styleConfiguration;
  std::vector<combine::Cancellable> cancellables;  ///< end with the model; the library makes none
  /// If present, the title is about the shopper's own returns.
  std::optional<UserDetails> userDetails;

  InfoWidgetViewModel(std::optional<std::string> shopper, std::string languageCode,
                      SwiftUIStyleConfiguration style)
      : name(std::move(shopper)),
        locale(std::move(languageCode)),
        regularFont(style.regularFont, QuorixFont::regular, 13),
        semiBoldFont(style.semiBoldFont, QuorixFont::medium, 13),
        styleConfiguration(std::move(style)) {}

  /// The general title in its fonts, with its figure in semi-bold. A string table whose title is
  /// only the figure stops the process.
  swiftui::Text getInfoTitle() const;
  /// The title about the shopper's own returns, with no font of its own; absent without details.
  std::optional<swiftui::Text> getTitle() const;
  /// The text that `getTitle` begins with in bold; may be empty.
  std::string boldStart() const;
};

}  // namespace quorix
