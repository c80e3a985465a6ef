#include "QuorixWidgets/overlay/PageNotice.h"

#include <utility>

#include "QuorixWidgets/localization/Assets.h"
#include "QuorixWidgets/localization/Strings.h"
#include "QuorixWidgets/localization/UIFont.h"
#include "platform/uikit/UILabel.h"

namespace quorix {
namespace {

// Points.
constexpr double top = 72;  // the overlay's crosses end at 58
constexpr double margin = 24;
constexpr double gap = 24;
constexpr double fontSize = 16;
constexpr double buttonPaddingAcross = 20;
constexpr double buttonPaddingDown = 14;  // 48 high with one line

std::shared_ptr<uikit::UILabel> makeLabel(const std::string& text, const QuorixFont& font) {
  auto label = std::make_shared<uikit::UILabel>();
  label->setFont(UIFont::Quorix::fixed(font, fontSize));
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

}  // namespace

std::shared_ptr<uikit::UIView> makePageNotice(std::string_view locale,
                                              std::shared_ptr<uikit::UITapGestureRecognizer> tap) {
  auto notice = std::make_shared<uikit::UIView>();
  notice->setBackgroundColor(UIColor::overlayBackgrounColor());
  const auto sentence = makeLabel(localized("webview-page-stopped", locale), QuorixFont::regular());
  const auto button = makeButton(localized("webview-try-again", locale), std::move(tap));
  notice->addSubview(sentence);
  notice->addSubview(button);
  uikit::NSLayoutConstraint::activate(
      {sentence->topAnchor().equalTo(notice->topAnchor(), top),
       sentence->leadingAnchor().equalTo(notice->leadingAnchor(), margin),
       sentence->trailingAnchor().equalTo(notice->trailingAnchor(), -margin),
       button->topAnchor().equalTo(sentence->bottomAnchor(), gap),
       button->leadingAnchor().equalTo(notice->leadingAnchor(), margin),
       button->trailingAnchor().lessThanOrEqualTo(notice->trailingAnchor(), -margin)});
  return notice;
}

}  // namespace quorix
