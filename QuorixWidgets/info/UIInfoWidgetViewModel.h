#pragma once

#include <optional>
#include <string>
#include <vector>

#include "QuorixWidgets/data/UserDetails.h"
#include "QuorixWidgets/localization/StyleConfiguration.h"
#include "platform/combine/ObservableObject.h"
#include "platform/uikit/NSAttributedString.h"
#include "platform/uikit/UIFont.h"

namespace quorix {

/// The title of the imperative info widget as attributed text, made once, and its fonts. Main
/// thread.
class UIInfoWidgetViewModel final : public combine::ObservableObject {
 public:
  const std::optional<std::string> name;  ///< the shopper's, for the web overlay
  const std::string locale;               ///< a language code

  // 13 points. The style's face if the font manager knows it, else the library's own, without
  // which the process stops. Resolved on first read and kept.
  const uikit::UIFont::Ref& regularFont() const;
  const uikit::UIFont::Ref& semiBoldFont() const;

  /// The runs have fonts and no color.
  combine::Published<uikit::NSAttributedString> titleText;
  const UIKitStyleConfiguration styleConfiguration;
  std::vector<combine::Cancellable> cancellables;  ///< end with the model; the library makes none
  std::optional<UserDetails> userDetails;

  /// `locale` is the language code of every text. A string table without a title stops the process.
  UIInfoWidgetViewModel(std::optional<std::string> name, std::string locale,
                        UIKitStyleConfiguration styleConfiguration);

 private:
  uikit::NSAttributedString getInfoTitle() const;

  mutable uikit::UIFont::Ref regularFont_;
  mutable uikit::UIFont::Ref semiBoldFont_;
};

}  // namespace quorix
