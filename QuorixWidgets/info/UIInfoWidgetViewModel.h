#pragma once

#include <optional>
#include <string>

#include "QuorixWidgets/data/UserDetails.h"
#include "QuorixWidgets/info/UIKitStyleConfiguration.h"
#include "platform/combine/ObservableObject.h"
#include "platform/uikit/NSAttributedString.h"
#include "platform/uikit/UIFont.h"

namespace quorix {

/// What the imperative info widget shows: its title as attributed text, made once, and its fonts.
/// Main thread.
class UIInfoWidgetViewModel final : public combine::ObservableObject {
 public:
  /// `locale` is the language code of every text. A string table without a title stops the process.
  UIInfoWidgetViewModel(std::optional<std::string> name, std::string locale,
                        UIKitStyleConfiguration styleConfiguration);

  /// The shopper's, for the web overlay.
  const std::optional<std::string> name;
  const std::string locale;
  /// The runs carry their fonts and no colour.
  combine::Published<uikit::NSAttributedString> titleText;
  const UIKitStyleConfiguration styleConfiguration;
  std::optional<UserDetails> userDetails;

  // 13 points. The style's face where the font manager knows it, else the library's own, without
  // which the process stops. Resolved once.
  const uikit::UIFont::Ref& regularFont() const;
  const uikit::UIFont::Ref& semiBoldFont() const;

 private:
  uikit::NSAttributedString getInfoTitle() const;

  mutable uikit::UIFont::Ref regularFont_;
  mutable uikit::UIFont::Ref semiBoldFont_;
};

}  // namespace quorix
