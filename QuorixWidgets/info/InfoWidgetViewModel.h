#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "QuorixWidgets/data/UserDetails.h"
#include "QuorixWidgets/localization/StyleConfiguration.h"
#include "platform/combine/ObservableObject.h"
#include "platform/foundation/Export.h"
#include "platform/swiftui/Text.h"
#include "platform/uikit/NSAttributedString.h"
#include "platform/uikit/UIFont.h"

namespace quorix {

/// A part of the info widget's general title.
struct InfoTitlePart {
  std::string text;
  bool isNumber = false;  ///< the figure, shown in semi-bold
  bool operator==(const InfoTitlePart&) const = default;
};

/// Splits `title` at `number`. Returns the text before it, the number, and the text after it, up to
/// its next occurrence. With text on one side only, returns the number and then that text. Empty
/// without other text. Any thread.
///
///     splitInfoTitle("A 20% B", "20%")  // "A ", "20%" (the number), " B"
std::vector<InfoTitlePart> splitInfoTitle(std::string_view title, std::string_view number);

/// Whether the string table of `locale` has a general title. The library's own tables have one.
/// Check this for tables that are being edited, as in a preview. Any thread.
QUORIX_EXPORT bool hasInfoTitle(std::string_view locale);

/// The general title in the string table of `locale`. If it is empty or only the number, stops the
/// process, because the widget cannot be shown. Any thread.
std::vector<InfoTitlePart> infoTitle(std::string_view locale);

/// The texts and fonts of a declarative info widget. Texts are looked up at each call; the model
/// publishes no changes. Main thread.
class InfoWidgetViewModel final : public combine::ObservableObject {
 public:
  const std::optional<std::string> name;  ///< the shopper's, for the overlay's heading
  const std::string locale;               ///< a language code
  const StyleFont regularFont;            ///< 13 points
  const StyleFont semiBoldFont;           ///< 13 points
  const SwiftUIStyleConfiguration styleConfiguration;
  std::vector<combine::Cancellable> cancellables;  ///< for hosts; end with the model
  /// If present, the title is about the shopper's own returns.
  std::optional<UserDetails> userDetails;

  InfoWidgetViewModel(std::optional<std::string> shopper, std::string languageCode,
                      SwiftUIStyleConfiguration style)
      : name(std::move(shopper)),
        locale(std::move(languageCode)),
        regularFont(style.regularFont, QuorixFont::regular, 13),
        semiBoldFont(style.semiBoldFont, QuorixFont::medium, 13),
        styleConfiguration(std::move(style)) {}

  /// The general title with its fonts; the figure is semi-bold. If the title is only the figure,
  /// stops the process.
  swiftui::Text getInfoTitle() const;
  /// The title about the shopper's own returns, without a font; absent without details.
  std::optional<swiftui::Text> getTitle() const;
  /// The bold start of the text of `getTitle`; may be empty.
  std::string boldStart() const;
};

/// The title of the imperative info widget as attributed text, made once, and its fonts. Main
/// thread.
class UIInfoWidgetViewModel final : public combine::ObservableObject {
 public:
  const std::optional<std::string> name;  ///< the shopper's, for the web overlay
  const std::string locale;               ///< a language code

  // 13 points. The style's face if the font manager knows it, else the library's own. Stops the
  // process if that is missing. Resolved and cached at the first read.
  const uikit::UIFont::Ref& regularFont() const;
  const uikit::UIFont::Ref& semiBoldFont() const;

  /// The runs have fonts but no color.
  combine::Published<uikit::NSAttributedString> titleText;
  const UIKitStyleConfiguration styleConfiguration;
  std::vector<combine::Cancellable> cancellables;  ///< for hosts; end with the model
  std::optional<UserDetails> userDetails;

  /// `locale` is the language code of all texts. Stops the process if its string table has no
  /// title.
  UIInfoWidgetViewModel(std::optional<std::string> name, std::string locale,
                        UIKitStyleConfiguration styleConfiguration);

 private:
  uikit::NSAttributedString getInfoTitle() const;

  mutable uikit::UIFont::Ref regularFont_;
  mutable uikit::UIFont::Ref semiBoldFont_;
};

}  // namespace quorix
