#include "tools/quorix/Commands.h"

#include <memory>
#include <optional>
#include <span>
#include <variant>

#include "QuorixWidgets/info/InfoWidgetBuilder.h"
#include "platform/graphics/RGBA.h"
#include "platform/swiftui/TreePrinter.h"
#include "platform/swiftui/UIViewRepresentable.h"
#include "platform/uikit/UIApplication.h"
#include "platform/uikit/UIViewController.h"
#include "platform/uikit/UIWindow.h"
#include "platform/uikit/ViewPrinter.h"
#include "tools/quorix/Application.h"
#include "tools/quorix/Arguments.h"
#include "tools/quorix/WidgetOptions.h"
#include "tools/quorix/WidgetOutput.h"
#include "tools/quorix/WidgetRequest.h"

namespace quorix::tool {
namespace {

/// The request of a "quorix info" command line.
struct InfoRequest : WidgetRequest {
  bool imperative = false;
  std::optional<graphics::RGBA> backgroundColor = {};
  bool border = false;

  static const std::span<const Option> options;

  /// The request in `arguments`, or the error in them.
  static std::variant<InfoRequest, Failure> read(const Arguments& arguments);
};

constexpr std::string_view forms[] = {"declarative", "imperative"};

constexpr auto table = withWidgetOptions({
    {"--form", "NAME", "{} (default declarative).", forms},
    {"--background-color", "#RRGGBB",
     "Behind the texts (default the library's own). The imperative "
     "form does not take one."},
    {"--border", "", "Draws a border. The imperative form has none."},
});

const std::span<const Option> InfoRequest::options = table;

std::variant<InfoRequest, Failure> InfoRequest::read(const Arguments& arguments) {
  OptionReader read(arguments);
  InfoRequest request{WidgetRequest::from(read)};
  request.imperative = read.choice("--form") == 1;
  request.backgroundColor = read.color("--background-color");
  request.border = read.has("--border");
  if (request.imperative && (request.backgroundColor || request.border)) {
    read.fail("the imperative form takes neither a background color nor a border");
  }
  if (read.failure()) return *read.failure();
  return request;
}

/// The app's only screen for imperative views. Keeps the controllers that they present over it.
/// Main thread.
class StandInScreen {
 public:
  StandInScreen();
  ~StandInScreen();
  StandInScreen(const StandInScreen&) = delete;
  StandInScreen& operator=(const StandInScreen&) = delete;

  /// Taps the first view in `root` that takes taps. Returns the controller that this presents, or
  /// null.
  std::shared_ptr<uikit::UIViewController> presentedByTap(const uikit::UIView& root) const;

 private:
  std::shared_ptr<uikit::UIWindow> window_ = std::make_shared<uikit::UIWindow>();
  std::shared_ptr<uikit::UIWindowScene> scene_ = std::make_shared<uikit::UIWindowScene>();
};

bool tapFirst(const uikit::UIView& view) {
  if (!view.gestureRecognizers().empty()) {
    view.gestureRecognizers().front()->recognize();
    return true;
  }
  for (const auto& subview : view.subviews()) {
    if (tapFirst(*subview)) return true;
  }
  return false;
}

StandInScreen::StandInScreen() {
  window_->setRootViewController(std::make_shared<uikit::UIViewController>());
  window_->makeKeyAndVisible();
  scene_->addWindow(window_);
  scene_->setActivationState(uikit::UIScene::ActivationState::foregroundActive);
  uikit::UIApplication::shared().connect(scene_);
}

StandInScreen::~StandInScreen() { uikit::UIApplication::shared().disconnect(scene_); }

std::shared_ptr<uikit::UIViewController> StandInScreen::presentedByTap(
    const uikit::UIView& root) const {
  tapFirst(root);
  return window_->rootViewController()->presentedViewController();
}

Outcome showDeclarative(const InfoRequest& request, const InfoWidgetStyle& style) {
  const auto view = InfoWidgetBuilder::buildSwiftUIInfoWidgetView(request.locale, style);
  return showWidget(view, request, [&] { return swiftui::printTree(view); });
}

Outcome showImperative(const InfoRequest& request, const InfoWidgetStyle& style,
                       const PictureApplication& application) {
  const auto widget = InfoWidgetBuilder::buildUIKitInfoWidgetView(request.locale, style);
  application.takeTurn();  // sets the title
  swiftui::View view = swiftui::hosting(widget);
  std::shared_ptr<uikit::UIViewController> overlay;
  if (request.picture.sheet) overlay = StandInScreen().presentedByTap(*widget);
  if (overlay) {
    view = view.sheet(swiftui::State<bool>(true).binding(), swiftui::hosting(overlay));
  }
  return showWidget(view, request, [&] {
    const std::string tree = uikit::printViews(*widget);
    return overlay ? tree + uikit::printViews(*overlay->view()) : tree;
  });
}

Outcome info(const Arguments& arguments) {
  auto read = InfoRequest::read(arguments);
  if (const auto* failure = std::get_if<Failure>(&read)) return *failure;
  auto& request = std::get<InfoRequest>(read);

  const PictureApplication application;
  if (const auto failure = request.findFaces()) return *failure;
  std::optional<swiftui::Color> background;
  if (request.backgroundColor) background = swiftui::Color::fixed(*request.backgroundColor);
  const InfoWidgetStyle style(request.regularFont, request.semiBoldFont, background,
                              request.border);
  return request.imperative ? showImperative(request, style, application)
                            : showDeclarative(request, style);
}

}  // namespace

const Command infoCommand{
    .name = "info",
    .purpose =
        "Shows the info widget: as a picture, a view tree, frames or words.\n"
        "Nothing is fetched: of a sheet, the page stays blank.",
    .options = InfoRequest::options,
    .operand = {},
    .details = {},
    .example = "quorix info --form imperative --locale es --width 343 --scale 3 --out info.png",
    .run = info,
};

}  // namespace quorix::tool
