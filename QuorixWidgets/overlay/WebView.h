#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "platform/swiftui/State.h"
#include "platform/swiftui/View.h"

namespace quorix {

/// The web overlay as the content of a sheet: a heading if there is a user name, a button that
/// closes the sheet, and the page below.
struct WebView {
  static constexpr std::string_view typeName = "WebView";

  swiftui::Binding<bool> showSheetPresented;
  std::optional<std::string> userName;
  std::optional<std::string> token;
  std::string locale;

  swiftui::View body() const;

 private:
  struct CloseButton;
};

}  // namespace quorix
