#pragma once

#include <memory>
#include <optional>
#include <string>
#include <utility>

#include "QuorixWidgets/localization/ServiceAddresses.h"
#include "platform/foundation/Bundle.h"
#include "platform/uikit/UIImageView.h"
#include "platform/uikit/UIViewController.h"
#include "platform/webkit/WKWebView.h"

namespace quorix {

/// The web overlay: a page of the vendor's web service that fills the controller's view, with a
/// close control if `showCloseButton` is set. Addresses that the page opens in a new window, or
/// that no page can show (mail, phone, another app), are opened outside the app. If the page cannot
/// be loaded or its process ends, a sentence in the page's language and a button to load it again
/// replace it. Main thread.
///
/// The fields are read once, when the view is loaded:
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
  std::optional<std::string> userName;  ///< sent only with a token
  std::optional<std::string> locale;    ///< a language code
  bool showCloseButton = false;

  WebViewController() : WebViewController(std::nullopt, nullptr) {}
  /// Passes the arguments to the base class.
  WebViewController(std::optional<std::string> nibName, foundation::Bundle::Ref bundle)
      : UIViewController(std::move(nibName), std::move(bundle)) {}
  /// Makes a controller from an archive. Archives do not contain the fields above; they have their
  /// defaults.
  static std::shared_ptr<WebViewController> initWithCoder() {
    return std::make_shared<WebViewController>();
  }

  void viewDidLoad() override;
  /// Dismisses the controller. `sender` is the tapped button or view and may be null.
  void clickCloseButton(const uikit::UIView* sender);
  /// Opens the address outside the app. Always returns null.
  std::shared_ptr<webkit::WKWebView> webView(
      webkit::WKWebView& webView, const webkit::WKWebViewConfiguration& createWebViewWith,
      const webkit::WKNavigationAction& forAction,
      const webkit::WKWindowFeatures& windowFeatures) override;
  void webViewWebContentProcessDidTerminate(webkit::WKWebView&) override { showNotice(); }
  void webViewDidFailProvisionalNavigation(webkit::WKWebView&) override { showNotice(); }

 private:
  void adddWebView();
  void loadURL();
  void addCloseButtonIfNeeded();
  void showNotice();
  void tryAgain();
  std::shared_ptr<WebViewController> self() {
    return std::static_pointer_cast<WebViewController>(shared_from_this());
  }

  std::string overlayURL_ = OverlayAddress::personalPage();
  std::string genericOverlayURL_ = OverlayAddress::generalPage();
  std::shared_ptr<webkit::WKWebView> webView_;
  std::shared_ptr<uikit::UIView> notice_;  ///< shown in place of the page; otherwise null
};

}  // namespace quorix
