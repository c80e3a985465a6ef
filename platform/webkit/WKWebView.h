#pragma once

#include <memory>

#include "platform/foundation/URLRequest.h"
#include "platform/uikit/UIView.h"
#include "platform/webkit/WKNavigationDelegate.h"
#include "platform/webkit/WKUIDelegate.h"
#include "platform/webkit/WKWebViewConfiguration.h"
#include "platform/webkit/WebContent.h"

namespace quorix::webkit {

/// A view that shows a web page, by the engine that the surface attaches to its content. The
/// delegates are held weakly. Main thread.
///
///     auto web = std::make_shared<WKWebView>(view->bounds(), WKWebViewConfiguration{});
///     web->load({*foundation::URL::parse("https://shop.example/")});
class WKWebView final : public uikit::UIView {
 public:
  WKWebView(layout::Rect frame, const WKWebViewConfiguration& configuration);
  ~WKWebView() override;

  void load(const foundation::URLRequest& request);

  void setNavigationDelegate(std::weak_ptr<WKNavigationDelegate> delegate);
  void setUIDelegate(std::weak_ptr<WKUIDelegate> delegate);
  std::shared_ptr<WKNavigationDelegate> navigationDelegate() const;
  std::shared_ptr<WKUIDelegate> uiDelegate() const;

  bool allowsBackForwardNavigationGestures() const;
  /// Before the page is shown.
  void setAllowsBackForwardNavigationGestures(bool allows);
  const WKWebViewConfiguration& configuration() const { return configuration_; }

  /// The page, for engines. Never null.
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
