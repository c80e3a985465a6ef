#pragma once

#include <memory>
#include <optional>
#include <string>
#include <string_view>

#include "QuorixWidgets/overlay/WebViewController.h"

namespace quorix {

/// The overlay's page in a declarative view. The controller is made once and keeps what it was
/// given: later values do not reach it, and a page that is shown is not loaded again.
struct WebViewControllerRepresentable {
  static constexpr std::string_view typeName = "WebViewControllerRepresentable";

  std::optional<std::string> userName;
  std::optional<std::string> token;
  std::string locale;

  std::shared_ptr<WebViewController> makeUIViewController() const;
  void updateUIViewController(WebViewController&) const {}
};

}  // namespace quorix
