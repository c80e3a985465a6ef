#include "QuorixWidgets/info/UIInfoWidget.h"

#include <utility>

#include "QuorixWidgets/info/UIApplication.h"
#include "QuorixWidgets/localization/LocalizedString.h"
#include "QuorixWidgets/localization/ResourceBundle.h"
#include "QuorixWidgets/localization/UIColor.h"
#include "QuorixWidgets/overlay/WebViewController.h"
#include "platform/foundation/FatalError.h"
#include "platform/foundation/MainQueue.h"
#include "platform/uikit/Nib.h"

namespace quorix {
namespace {

constexpr std::string_view source = "QuorixWidgets/UIInfoWidget";

/// What an outlet holds, which a broken interface file may have left empty.
template <class View>
View& require(const std::shared_ptr<View>& outlet) {
  if (!outlet) {
    foundation::fatalError("Unexpectedly found nil while implicitly unwrapping an Optional value",
                           source);
  }
  return *outlet;
}

}  // namespace

UIInfoWidget::UIInfoWidget(std::shared_ptr<UIInfoWidgetViewModel> viewModel)
    : viewModel_(std::move(viewModel)) {}

std::shared_ptr<UIInfoWidget> UIInfoWidget::make(std::shared_ptr<UIInfoWidgetViewModel> viewModel) {
  std::shared_ptr<UIInfoWidget> widget(new UIInfoWidget(std::move(viewModel)));
  widget->commonInit();
  return widget;
}

std::shared_ptr<UIInfoWidget> UIInfoWidget::initWithCoder() {
  foundation::fatalError("init(coder:) has not been implemented", source);
}

std::shared_ptr<UIInfoWidget> UIInfoWidget::initWithFrame(layout::Rect) {
  foundation::fatalError(
      "Use of unimplemented initializer 'init(frame:)' for class 'QuorixWidgets.UIInfoWidget'",
      source);
}

void UIInfoWidget::commonInit() {
  if (const auto bundle = libraryBundle()) {
    const auto loaded =
        uikit::Nib::load(classXibName, *bundle, classXibName,
                         {{{"contentView", &contentView_}},
                          {{"titleLabel", &titleLabel_}, {"linkLabel", &linkLabel_}}});
    if (const auto* error = std::get_if<foundation::Error>(&loaded)) {
      foundation::fatalError(error->description, source);
    }
  }
  setupView();
  setupWithInfo();
}

void UIInfoWidget::setupView() {
  uikit::UIView& content = require(contentView_);
  content.setTranslatesAutoresizingMaskIntoConstraints(false);
  content.setFrame(frame());
  addSubview(contentView_);
  uikit::NSLayoutConstraint::activate({content.leadingAnchor().equalTo(leadingAnchor()),
                                       content.trailingAnchor().equalTo(trailingAnchor()),
                                       content.topAnchor().equalTo(topAnchor()),
                                       content.bottomAnchor().equalTo(bottomAnchor())});
  if (!viewModel_->styleConfiguration.showBorder) return;
  content.layer().setBorderWidth(1);
  content.layer().setBorderColor(UIColor::defaultFontColor());
}

void UIInfoWidget::setupWithInfo() {
  followTitle();
  uikit::UILabel& title = require(titleLabel_.lock());
  title.setTextColor(UIColor::defaultFontColor());
  title.setNumberOfLines(0);
  styleLink();
  const auto& background = viewModel_->styleConfiguration.backgroundColor;
  contentView_->setBackgroundColor(background ? background : UIColor::widgetBackground());
}

/// Each title, the current one first, is shown on a turn of the main queue.
void UIInfoWidget::followTitle() {
  const auto self = std::static_pointer_cast<UIInfoWidget>(shared_from_this());
  const auto deliver = [widget = std::weak_ptr(self)] {
    foundation::MainQueue::async([widget] {
      const auto shown = widget.lock();
      if (!shown) return;
      require(shown->titleLabel_.lock()).setAttributedText(shown->viewModel_->titleText);
    });
  };
  cancellables_.push_back(viewModel_->onWillChange(deliver));
  deliver();
}

void UIInfoWidget::styleLink() {
  uikit::UILabel& link = require(linkLabel_.lock());
  link.setAttributedText(
      uikit::NSAttributedString(localized("widget-read-more", viewModel_->locale),
                                {.underlineStyle = uikit::NSUnderlineStyle::thick}));
  link.setFont(viewModel_->regularFont());
  link.setTextColor(UIColor::defaultFontColor());
  link.setNumberOfLines(0);
  link.setUserInteractionEnabled(true);
  link.addGestureRecognizer(std::make_shared<uikit::UITapGestureRecognizer>(
      std::static_pointer_cast<UIInfoWidget>(shared_from_this()),
      [](UIInfoWidget& widget, uikit::UITapGestureRecognizer& sender) {
        widget.tapFunction(sender);
      }));
}

void UIInfoWidget::tapFunction(uikit::UITapGestureRecognizer&) {
  const auto overlay = std::make_shared<WebViewController>();
  overlay->userName = viewModel_->name;
  overlay->locale = viewModel_->locale;
  overlay->showCloseButton = true;
  if (const auto top = getCurrentViewController()) top->present(overlay, true);
}

std::shared_ptr<uikit::UIViewController> UIInfoWidget::getCurrentViewController() {
  const auto window = UIApplication::getKeyWindow();
  auto top = window ? window->rootViewController() : nullptr;
  while (top && top->presentedViewController()) top = top->presentedViewController();
  return top;
}

}  // namespace quorix
