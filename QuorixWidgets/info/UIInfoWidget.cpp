#include "QuorixWidgets/info/UIInfoWidget.h"

#include <algorithm>
#include <utility>

#include "QuorixWidgets/localization/Assets.h"
#include "QuorixWidgets/localization/ResourceBundle.h"
#include "QuorixWidgets/localization/Strings.h"
#include "QuorixWidgets/overlay/WebViewController.h"
#include "platform/foundation/Error.h"
#include "platform/foundation/MainQueue.h"
#include "platform/uikit/Nib.h"
#include "platform/uikit/UIApplication.h"

namespace quorix {

using uikit::UIScene;
using uikit::UIWindow;
using uikit::UIWindowScene;

namespace {

constexpr std::string_view source = "QuorixWidgets/UIInfoWidget";

/// The object of an outlet. Stops the process if a broken interface file has left it empty.
template <class View>
View& require(const std::shared_ptr<View>& outlet) {
  if (!outlet) {
    foundation::fatalError("Unexpectedly found nil while implicitly unwrapping an Optional value",
                           source);
  }
  return *outlet;
}

std::vector<std::shared_ptr<UIWindowScene>> windowScenes() {
  std::vector<std::shared_ptr<UIWindowScene>> found;
  for (const auto& scene : uikit::UIApplication::shared().connectedScenes()) {
    if (auto withWindows = std::dynamic_pointer_cast<UIWindowScene>(scene)) {
      found.push_back(std::move(withWindows));
    }
  }
  return found;
}

template <class Condition>
std::shared_ptr<UIWindow> firstWindow(const UIWindowScene& scene, Condition condition) {
  const auto& windows = scene.windows();
  const auto found = std::find_if(windows.begin(), windows.end(), condition);
  return found == windows.end() ? nullptr : *found;
}

bool isKey(const std::shared_ptr<UIWindow>& window) { return window->isKeyWindow(); }

bool isInPlainSight(const std::shared_ptr<UIWindow>& window) {
  return !window->isHidden() && window->windowLevel() == UIWindow::normalLevel;
}

}  // namespace

std::shared_ptr<UIWindow> UIApplication::getKeyWindow() {
  const auto scenes = windowScenes();
  const auto active = std::find_if(scenes.begin(), scenes.end(), [](const auto& scene) {
    return scene->activationState() == UIScene::ActivationState::foregroundActive;
  });
  if (active != scenes.end()) {
    if (auto key = firstWindow(**active, isKey)) return key;
    if (auto visible = firstWindow(**active, isInPlainSight)) return visible;
    return firstWindow(**active, [](const auto&) { return true; });
  }
  for (const auto& scene : scenes) {
    if (auto key = firstWindow(*scene, isKey)) return key;
  }
  return nullptr;
}

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

/// Shows the current title and each later one, on the main queue's next turn.
void UIInfoWidget::followTitle() {
  const auto self = std::static_pointer_cast<UIInfoWidget>(shared_from_this());
  const auto deliver = [widget = std::weak_ptr(self)](const uikit::NSAttributedString& title) {
    foundation::MainQueue::async([widget, title] {
      const auto shown = widget.lock();
      if (shown) require(shown->titleLabel_.lock()).setAttributedText(title);
    });
  };
  title_ = viewModel_->titleText.sink(deliver);
}

void UIInfoWidget::styleLink() {
  uikit::UILabel& link = require(linkLabel_.lock());
  const uikit::NSAttributes look{viewModel_->regularFont(), UIColor::defaultFontColor(),
                                 uikit::NSUnderlineStyle::thick};
  link.setAttributedText(
      uikit::NSAttributedString(localized("widget-read-more", viewModel_->locale), look).shared());
  link.setFont(look.font);
  link.setTextColor(look.foregroundColor);
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
