#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "platform/swiftui/State.h"
#include "platform/swiftui/View.h"

namespace quorix {

/// The web overlay as the content of a sheet: the page, above it a heading if there is a user name,
/// and a button that closes the sheet.
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
