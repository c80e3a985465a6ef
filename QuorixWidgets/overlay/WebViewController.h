#pragma once

#include <memory>
#include <optional>
#include <string>

#include "platform/uikit/UIImageView.h"
#include "platform/uikit/UIViewController.h"
#include "platform/webkit/WKWebView.h"

namespace quorix {

/// The web overlay: a page of the vendor's web service that fills the controller's view, with a
/// close control of its own where that is asked for. What a page wants to open in a new window
/// leaves the app. Main thread.
///
/// The fields are read once, when the view loads:
///
///     auto overlay = std::make_shared<WebViewController>();
///     overlay->locale = "nb";
///     overlay->showCloseButton = true;
///     top->present(overlay, true);
class WebViewController final : public uikit::UIViewController,
                                public webkit::WKNavigationDelegate,
                                public webkit::WKUIDelegate {
 public:
  std::optional<std::string> token;     ///< the shopper's; selects the personal page
  std::optional<std::string> userName;  ///< sent with a token only
  std::optional<std::string> locale;    ///< a language code
  bool showCloseButton = false;

  void viewDidLoad() override;
  /// Dismisses the controller.
  void clickCloseButton();
  /// Hands the address to the system and opens nothing here.
  std::shared_ptr<webkit::WKWebView> webView(
      webkit::WKWebView& webView, const webkit::WKWebViewConfiguration& createWebViewWith,
      const webkit::WKNavigationAction& forAction,
      const webkit::WKWindowFeatures& windowFeatures) override;

 private:
  void adddWebView();
  void loadURL();
  void addCloseButtonIfNeeded();
  std::shared_ptr<WebViewController> self() {
    return std::static_pointer_cast<WebViewController>(shared_from_this());
  }

  std::shared_ptr<webkit::WKWebView> webView_;
};

}  // namespace quorix
