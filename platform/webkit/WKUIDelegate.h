#pragma once

#include <memory>

#include "platform/webkit/WKNavigationAction.h"
#include "platform/webkit/WKWebViewConfiguration.h"

namespace quorix::webkit {

class WKWebView;

/// The sizes and bars that a script asks for its window; none are told.
struct WKWindowFeatures {};

/// Answers for a web view what the page asks of the app. Main thread.
class WKUIDelegate {
 public:
  virtual ~WKUIDelegate() = default;

  /// The page, or a script on it, asks for a new window. What is returned is not given the page:
  /// the library knows only windows that leave the app. Absent, and without a delegate, none opens.
  virtual std::shared_ptr<WKWebView> webView(WKWebView& webView,
                                             const WKWebViewConfiguration& createWebViewWith,
                                             const WKNavigationAction& forAction,
                                             const WKWindowFeatures& windowFeatures) = 0;
};

}  // namespace quorix::webkit
