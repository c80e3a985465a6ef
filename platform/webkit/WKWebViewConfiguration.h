#pragma once

namespace quorix::webkit {

/// What a page may do, page by page.
struct WKWebpagePreferences {
  bool allowsContentJavaScript = true;
};

struct WKPreferences {
  /// Scripts may ask for windows without the user's gesture.
  bool javaScriptCanOpenWindowsAutomatically = false;
};

/// How a web view is made. The view keeps a copy: later changes have no effect.
struct WKWebViewConfiguration {
  WKWebpagePreferences defaultWebpagePreferences;
  WKPreferences preferences;
};

}  // namespace quorix::webkit
