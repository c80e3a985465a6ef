#pragma once

#include <memory>
#include <optional>
#include <utility>

#include "platform/foundation/URL.h"
#include "platform/uikit/UIView.h"
#include "platform/webkit/WebContent.h"

namespace quorix::webkit {

class WKWebView;

struct WKWebpagePreferences {
  bool allowsContentJavaScript = true;
};

struct WKPreferences {
  /// Whether scripts may ask for windows without a user gesture.
  bool javaScriptCanOpenWindowsAutomatically = false;
};

/// Settings of a web view. The view copies them: later changes have no effect.
struct WKWebViewConfiguration {
  WKWebpagePreferences defaultWebpagePreferences;
  WKPreferences preferences;
};

/// A page's request for an address.
struct WKNavigationAction {
  std::optional<foundation::URLRequest> request;  ///< absent: a window without an address
};

/// The window size and bars that a script requested. Not filled in.
struct WKWindowFeatures {};

/// Receives events of a web view's page. Main thread.
class WKNavigationDelegate {
 public:
  virtual ~WKNavigationDelegate() = default;

  /// The process of the page crashed or was killed: the view stays empty until the next load.
  virtual void webViewWebContentProcessDidTerminate(WKWebView&) {}

  /// A load failed before any data arrived: the view is empty.
  virtual void webViewDidFailProvisionalNavigation(WKWebView&) {}
};

/// Handles a page's requests to the app. Main thread.
class WKUIDelegate {
 public:
  virtual ~WKUIDelegate() = default;

  /// The page, or a script on it, asks for a new window. Return null: a returned view would not get
  /// the page, because new windows open only outside the app. Without a delegate, none opens.
  virtual std::shared_ptr<WKWebView> webView(WKWebView& webView,
                                             const WKWebViewConfiguration& createWebViewWith,
                                             const WKNavigationAction& forAction,
                                             const WKWindowFeatures& windowFeatures) = 0;
};

/// A view that shows a web page. The surface attaches a web engine to its content. Holds the
/// delegates weakly. Main thread.
///
///     auto web = std::make_shared<WKWebView>(view->bounds(), WKWebViewConfiguration{});
///     web->load({*foundation::URL::parse("https://shop.example/")});
class WKWebView final : public uikit::UIView {
 public:
  WKWebView(layout::Rect frame, const WKWebViewConfiguration& configuration);
  ~WKWebView() override;

  void load(const foundation::URLRequest& request);

  void setNavigationDelegate(std::weak_ptr<WKNavigationDelegate> delegate) {
    navigationDelegate_ = std::move(delegate);
  }
  void setUIDelegate(std::weak_ptr<WKUIDelegate> delegate) { uiDelegate_ = std::move(delegate); }

  /// Call before the page is shown.
  void setAllowsBackForwardNavigationGestures(bool allows) {
    content_->settings.allowsBackForwardNavigationGestures = allows;
  }

  /// The page, for web engines. Never null.
  const std::shared_ptr<WebContent>& content() const { return content_; }

  std::string_view className() const override { return "WKWebView"; }
  void draw(const layout::Rect& frame, const uikit::LayoutContext& context,
            std::vector<render::Item>& items) const override;

 private:
  WKWebViewConfiguration configuration_;
  std::shared_ptr<WebContent> content_;
  std::weak_ptr<WKNavigationDelegate> navigationDelegate_;
  std::weak_ptr<WKUIDelegate> uiDelegate_;
};

}  // namespace quorix::webkit
