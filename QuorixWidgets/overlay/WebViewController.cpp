#include "QuorixWidgets/overlay/WebViewController.h"

#include <utility>

#include "QuorixWidgets/localization/Assets.h"
#include "QuorixWidgets/overlay/PageNotice.h"
#include "platform/foundation/Error.h"
#include "platform/uikit/UIApplication.h"

namespace quorix {
namespace {

// The close control, in points.
constexpr double closeSide = 48;
constexpr double closeTop = 10;
constexpr uikit::UIEdgeInsets closeInsets = {-32, -32, -32, -32};

void fill(uikit::UIView& outer, uikit::UIView& inner) {
  inner.setTranslatesAutoresizingMaskIntoConstraints(false);
  uikit::NSLayoutConstraint::activate({inner.topAnchor().equalTo(outer.topAnchor()),
                                       inner.bottomAnchor().equalTo(outer.bottomAnchor()),
                                       inner.leftAnchor().equalTo(outer.leftAnchor()),
                                       inner.rightAnchor().equalTo(outer.rightAnchor())});
}

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
  view()->insertSubview(webView_, 0);
  fill(*view(), *webView_);
  webView_->setNavigationDelegate(self());
  webView_->setUIDelegate(self());
  webView_->setAllowsBackForwardNavigationGestures(true);
  webView_->setOpaque(false);
  webView_->setBackgroundColor(UIColor::overlayBackgrounColor());
}

void WebViewController::loadURL() {
  const OverlayAddress address{.token = token,
                               .userName = userName,
                               .locale = locale,
                               .overlayURL = overlayURL_,
                               .genericOverlayURL = genericOverlayURL_};
  if (const auto url = address.url()) webView_->load({*url});  // waits 60 seconds for a byte
}

void WebViewController::addCloseButtonIfNeeded() {
  if (!showCloseButton) return;
  const auto& resource = ImageResource::close();
  const auto image = uikit::UIImage::named(resource.name, resource.bundle);
  if (!image) foundation::fatalError("No image named 'close' in the asset catalog");
  // Not tinted: the picture has its own colors for light and dark.
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
        controller.clickCloseButton(nullptr);
      }));
}

void WebViewController::clickCloseButton(const uikit::UIView*) { dismiss(true); }

std::shared_ptr<webkit::WKWebView> WebViewController::webView(
    webkit::WKWebView&, const webkit::WKWebViewConfiguration&,
    const webkit::WKNavigationAction& forAction, const webkit::WKWindowFeatures&) {
  if (forAction.request) uikit::UIApplication::shared().open(forAction.request->url, {});
  return nullptr;
}

/// Hides the page, so that the surface removes its view, and shows the notice in its place.
void WebViewController::showNotice() {
  if (notice_) return;
  webView_->setHidden(true);
  notice_ =
      makePageNotice(locale.value_or("en"),
                     std::make_shared<uikit::UITapGestureRecognizer>(
                         self(), [](WebViewController& controller, uikit::UITapGestureRecognizer&) {
                           controller.tryAgain();
                         }));
  view()->insertSubview(notice_, 1);
  fill(*view(), *notice_);
}

void WebViewController::tryAgain() {
  if (const auto notice = std::exchange(notice_, nullptr)) notice->removeFromSuperview();
  webView_->setHidden(false);
  loadURL();
}

}  // namespace quorix
