#include "QuorixWidgets/overlay/WebViewController.h"

#include "QuorixWidgets/localization/ImageResource.h"
#include "QuorixWidgets/localization/UIColor.h"
#include "QuorixWidgets/overlay/OverlayAddress.h"
#include "platform/foundation/FatalError.h"
#include "platform/uikit/UIApplication.h"

namespace quorix {
namespace {

// The close control, in points.
constexpr double closeSide = 48;
constexpr double closeTop = 10;
constexpr uikit::UIEdgeInsets closeInsets = {-32, -32, -32, -32};

}  // namespace

void WebViewController::viewDidLoad() {
  UIViewController::viewDidLoad();
  adddWebView();
  loadURL();
  addCloseButtonIfNeeded();
}

void WebViewController::adddWebView() {
  webkit::WKWebViewConfiguration configuration;
  configuration.defaultWebpagePreferences.allowsContentJavaScript = true;
  configuration.preferences.javaScriptCanOpenWindowsAutomatically = true;
  webView_ = std::make_shared<webkit::WKWebView>(view()->bounds(), configuration);
  webView_->setTranslatesAutoresizingMaskIntoConstraints(false);
  view()->insertSubview(webView_, 0);
  uikit::NSLayoutConstraint::activate({webView_->topAnchor().equalTo(view()->topAnchor()),
                                       webView_->bottomAnchor().equalTo(view()->bottomAnchor()),
                                       webView_->leftAnchor().equalTo(view()->leftAnchor()),
                                       webView_->rightAnchor().equalTo(view()->rightAnchor())});
  webView_->setNavigationDelegate(self());
  webView_->setUIDelegate(self());
  webView_->setAllowsBackForwardNavigationGestures(true);
  webView_->setOpaque(false);
  webView_->setBackgroundColor(UIColor::overlayBackgrounColor());
}

void WebViewController::loadURL() {
  const OverlayAddress address{.token = token, .userName = userName, .locale = locale};
  if (const auto url = address.url()) webView_->load({*url});
}

void WebViewController::addCloseButtonIfNeeded() {
  if (!showCloseButton) return;
  const auto& resource = ImageResource::close();
  const auto image = uikit::UIImage::named(resource.name, resource.bundle);
  if (!image) foundation::fatalError("No image named 'close' in the asset catalog");
  // Not tinted: the cross has colours of its own, for light and for dark.
  const auto control =
      std::make_shared<uikit::UIImageView>(image->withAlignmentRectInsets(closeInsets));
  control->setTranslatesAutoresizingMaskIntoConstraints(false);
  view()->addSubview(control);
  uikit::NSLayoutConstraint::activate({control->widthAnchor().equalTo(closeSide),
                                       control->heightAnchor().equalTo(closeSide),
                                       control->topAnchor().equalTo(view()->topAnchor(), closeTop),
                                       control->rightAnchor().equalTo(view()->rightAnchor())});
  control->setUserInteractionEnabled(true);
  control->addGestureRecognizer(std::make_shared<uikit::UITapGestureRecognizer>(
      self(), [](WebViewController& controller, uikit::UITapGestureRecognizer&) {
        controller.clickCloseButton();
      }));
}

void WebViewController::clickCloseButton() { dismiss(true); }

std::shared_ptr<webkit::WKWebView> WebViewController::webView(
    webkit::WKWebView&, const webkit::WKWebViewConfiguration&,
    const webkit::WKNavigationAction& forAction, const webkit::WKWindowFeatures&) {
  if (forAction.request) uikit::UIApplication::shared().open(forAction.request->url, {});
  return nullptr;
}

}  // namespace quorix
