#include "platform/webkit/WKWebView.h"

#include <utility>

namespace quorix::webkit {
namespace {

/// What an opaque web view shows before its page has painted.
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
    if (const auto delegate = uiDelegate()) delegate->webView(*this, configuration_, action, {});
  };
}

/// An engine may hold the page longer than this view.
WKWebView::~WKWebView() {
  content_->onNewWindow = [](const auto&) {};
}

void WKWebView::load(const foundation::URLRequest& request) { content_->load(request.url); }

void WKWebView::setNavigationDelegate(std::weak_ptr<WKNavigationDelegate> delegate) {
  navigationDelegate_ = std::move(delegate);
}

void WKWebView::setUIDelegate(std::weak_ptr<WKUIDelegate> delegate) {
  uiDelegate_ = std::move(delegate);
}

std::shared_ptr<WKNavigationDelegate> WKWebView::navigationDelegate() const {
  return navigationDelegate_.lock();
}

std::shared_ptr<WKUIDelegate> WKWebView::uiDelegate() const { return uiDelegate_.lock(); }

bool WKWebView::allowsBackForwardNavigationGestures() const {
  return content_->settings.allowsBackForwardNavigationGestures;
}

void WKWebView::setAllowsBackForwardNavigationGestures(bool allows) {
  content_->settings.allowsBackForwardNavigationGestures = allows;
}

void WKWebView::draw(const layout::Rect& frame, const uikit::LayoutContext& context,
                     std::vector<render::Item>& items) const {
  graphics::RGBA background = isOpaque() ? blankPage : graphics::RGBA{0, 0, 0, 0};
  if (backgroundColor()) background = backgroundColor()->resolve(context.display.appearance);
  items.push_back(render::EmbedItem{frame, content_, background});
}

}  // namespace quorix::webkit
