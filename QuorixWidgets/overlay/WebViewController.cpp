#include "QuorixWidgets/overlay/WebViewController.h"

#include <utility>

#include "QuorixWidgets/localization/Assets.h"
#include "QuorixWidgets/localization/Strings.h"
#include "QuorixWidgets/localization/UIFont.h"
#include "platform/foundation/Error.h"
#include "platform/uikit/UIApplication.h"
#include "platform/uikit/UILabel.h"

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

// The notice, in points.
constexpr double noticeTop = 72;  // the overlay's close controls end at 58
constexpr double noticeMargin = 24;
constexpr double noticeGap = 24;
constexpr double noticeFontSize = 16;
constexpr double buttonPaddingAcross = 20;
constexpr double buttonPaddingDown = 14;  // 48 points high with one line

std::shared_ptr<uikit::UILabel> makeLabel(const std::string& text, const QuorixFont& font) {
  auto label = std::make_shared<uikit::UILabel>();
  label->setFont(UIFont::Quorix::fixed(font, noticeFontSize));
  label->setTextColor(UIColor::defaultFontColor());
  label->setNumberOfLines(0);
  label->setText(text);
  label->setTranslatesAutoresizingMaskIntoConstraints(false);
  return label;
}

std::shared_ptr<uikit::UIView> makeButton(const std::string& text,
                                          std::shared_ptr<uikit::UITapGestureRecognizer> tap) {
  auto button = std::make_shared<uikit::UIView>();
  const auto label = makeLabel(text, QuorixFont::medium());
  label->setUserInteractionEnabled(true);
  button->addSubview(label);
  uikit::NSLayoutConstraint::activate(
      {label->topAnchor().equalTo(button->topAnchor(), buttonPaddingDown),
       label->bottomAnchor().equalTo(button->bottomAnchor(), -buttonPaddingDown),
       label->leadingAnchor().equalTo(button->leadingAnchor(), buttonPaddingAcross),
       label->trailingAnchor().equalTo(button->trailingAnchor(), -buttonPaddingAcross)});
  button->setTranslatesAutoresizingMaskIntoConstraints(false);
  button->layer().setBorderWidth(1);
  button->layer().setBorderColor(UIColor::defaultFontColor());
  button->addGestureRecognizer(std::move(tap));
  return button;
}

/// A view in place of a page that was not loaded or has stopped: one sentence in the language
/// `locale`, and below it a button with the recognizer `tap` to try again. It starts below the
/// overlay's close control.
std::shared_ptr<uikit::UIView> makePageNotice(std::string_view locale,
                                              std::shared_ptr<uikit::UITapGestureRecognizer> tap) {
  auto notice = std::make_shared<uikit::UIView>();
  notice->setBackgroundColor(UIColor::overlayBackgrounColor());
  const auto sentence = makeLabel(localized("webview-page-stopped", locale), QuorixFont::regular());
  const auto button = makeButton(localized("webview-try-again", locale), std::move(tap));
  notice->addSubview(sentence);
  notice->addSubview(button);
  uikit::NSLayoutConstraint::activate(
      {sentence->topAnchor().equalTo(notice->topAnchor(), noticeTop),
       sentence->leadingAnchor().equalTo(notice->leadingAnchor(), noticeMargin),
       sentence->trailingAnchor().equalTo(notice->trailingAnchor(), -noticeMargin),
       button->topAnchor().equalTo(sentence->bottomAnchor(), noticeGap),
       button->leadingAnchor().equalTo(notice->leadingAnchor(), noticeMargin),
       button->trailingAnchor().lessThanOrEqualTo(notice->trailingAnchor(), -noticeMargin)});
  return notice;
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
  if (const auto url = address.url()) webView_->load({*url});  // time-out: 60 s without a byte
}

void WebViewController::addCloseButtonIfNeeded() {
  if (!showCloseButton) return;
  const auto& resource = ImageResource::close();
  const auto image = uikit::UIImage::named(resource.name, resource.bundle);
  if (!image) foundation::fatalError("No image named 'close' in the asset catalog");
  // Has no tint, because the picture has its own colors for light and dark.
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

/// Shows the notice in place of the page. Hides the page, so that the surface removes its view.
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
