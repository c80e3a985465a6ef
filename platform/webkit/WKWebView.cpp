#include "platform/webkit/WKWebView.h"

namespace quorix::webkit {
namespace {

/// The color of an opaque web view until its page has painted.
constexpr graphics::RGBA blankPage = {255, 255, 255, 255};

}  // namespace

WKWebView::WKWebView(layout::Rect frame, const WKWebViewConfiguration& configuration)
    : UIView(frame), configuration_(configuration), content_(std::make_shared<WebContent>()) {
  content_->settings.allowsContentJavaScript =
      configuration.defaultWebpagePreferences.allowsContentJavaScript;
  content_->settings.javaScriptCanOpenWindowsAutomatically =
      configuration.preferences.javaScriptCanOpenWindowsAutomatically;
  content_->onNewWindow = [this](const std::optional<foundation::URL>& url) {
    const auto kept = weak_from_this().lock();
    WKNavigationAction action;
    if (url) action.request = foundation::URLRequest{*url};
    if (const auto delegate = uiDelegate_.lock()) {
      delegate->webView(*this, configuration_, action, {});
    }
  };
  const auto tells = [this](void (WKNavigationDelegate::*what)(WKWebView&)) {
    return [this, what] {
      const auto kept = weak_from_this().lock();
      if (const auto delegate = navigationDelegate_.lock()) (delegate.get()->*what)(*this);
    };
  };
  content_->onProcessEnded = tells(&WKNavigationDelegate::webViewWebContentProcessDidTerminate);
  content_->onLoadFailed = tells(&WKNavigationDelegate::webViewDidFailProvisionalNavigation);
}

/// Clears the callbacks: the engine may outlive this view and still hold the content.
WKWebView::~WKWebView() {
  content_->onNewWindow = nullptr;
  content_->onProcessEnded = nullptr;
  content_->onLoadFailed = nullptr;
}

void WKWebView::load(const foundation::URLRequest& request) { content_->load(request); }

void WKWebView::draw(const layout::Rect& frame, const uikit::LayoutContext& context,
                     std::vector<render::Item>& items) const {
  graphics::RGBA background = isOpaque() ? blankPage : graphics::RGBA{0, 0, 0, 0};
  if (backgroundColor()) background = backgroundColor()->resolve(context.display.appearance);
  items.push_back(render::EmbedItem{frame, content_, background});
}

}  // namespace quorix::webkit
