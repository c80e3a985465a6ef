#include <QColor>
#include <algorithm>
#include <memory>

#include "QuorixWidgets/info/InfoWidgetBuilder.h"
#include "platform/swiftui/TreePrinter.h"
#include "platform/swiftui/UIViewRepresentable.h"
#include "platform/uikit/UIApplication.h"
#include "platform/uikit/UIViewController.h"
#include "platform/uikit/UIWindow.h"
#include "platform/uikit/ViewPrinter.h"
#include "tools/quorix/Application.h"
#include "tools/quorix/Commands.h"
#include "tools/quorix/Widget.h"
#include "tools/quorix/gallery/CellRendering.h"

namespace quorix::tool {
namespace {

constexpr std::string_view forms[] = {"declarative", "imperative"};

struct InfoRequest : WidgetRequest {
  int form = 0;
  std::optional<std::string> backgroundColor = {};
  bool border = false;
};

bool tapFirst(const uikit::UIView& view) {
  if (!view.gestureRecognizers().empty()) {
    view.gestureRecognizers().front()->recognize();
    return true;
  }
  return std::ranges::any_of(view.subviews(), [](const auto& child) { return tapFirst(*child); });
}

/// Taps the first view in `root` that takes taps, in an app with one screen. Returns the controller
/// that this presents, or null.
std::shared_ptr<uikit::UIViewController> presentedByTap(const uikit::UIView& root) {
  const auto screen = std::make_shared<uikit::UIViewController>();
  const auto window = std::make_shared<uikit::UIWindow>();
  window->setRootViewController(screen);
  window->makeKeyAndVisible();
  const auto scene = std::make_shared<uikit::UIWindowScene>();
  scene->addWindow(window);
  scene->setActivationState(uikit::UIScene::ActivationState::foregroundActive);
  uikit::UIApplication::shared().connect(scene);
  tapFirst(root);
  uikit::UIApplication::shared().disconnect(scene);
  return screen->presentedViewController();
}

Outcome showImperative(const InfoRequest& request, const InfoWidgetStyle& style) {
  const auto widget = InfoWidgetBuilder::buildUIKitInfoWidgetView(request.locale, style);
  gallery::takeTurn();  // sets the title
  swiftui::View view = swiftui::hosting(widget);
  const auto overlay = request.picture.sheet ? presentedByTap(*widget) : nullptr;
  if (overlay) {
    view = view.sheet(swiftui::State<bool>(true).binding(), swiftui::hosting(overlay));
  }
  return showWidget(view, request, [&] {
    const std::string tree = uikit::printViews(*widget);
    return overlay ? tree + uikit::printViews(*overlay->view()) : tree;
  });
}

Outcome info(InfoRequest& request) {
  const bool imperative = request.form == 1;
  std::optional<swiftui::Color> background;
  if (const auto& text = request.backgroundColor) {
    const QColor color = QColor::fromString(QString::fromStdString(*text));
    if (!color.isValid() || !text->starts_with('#') || text->size() != 7) {
      return Failure::usage("--background-color wants a color such as #FAF7F0, not \"" + *text +
                            '"');
    }
    const auto byte = [](int channel) { return static_cast<std::uint8_t>(channel); };
    background =
        swiftui::Color::fixed({byte(color.red()), byte(color.green()), byte(color.blue())});
  }
  if (imperative && (background || request.border)) {
    return Failure::usage("the imperative form takes neither a background color nor a border");
  }
  const auto application = startApplication();
  if (auto failure = request.prepare()) return *std::move(failure);
  const InfoWidgetStyle style(request.regularFont, request.semiBoldFont, background,
                              request.border);
  if (imperative) return showImperative(request, style);
  const auto view = InfoWidgetBuilder::buildSwiftUIInfoWidgetView(request.locale, style);
  return showWidget(view, request, [&] { return swiftui::printTree(view); });
}

}  // namespace

Command infoCommand() {
  const auto request = std::make_shared<InfoRequest>();
  return {
      .name = "info",
      .purpose =
          "Shows the info widget: as a picture, a view tree, frames or words.\n"
          "Nothing is fetched: of a sheet, the page stays blank.",
      .options = withWidgetOptions(
          *request,
          {{"--form", "NAME", "{} (default declarative).", &request->form, oneOf(forms)},
           {"--background-color", "#RRGGBB",
            "Behind the texts (default the library's own). The imperative form does not take one.",
            &request->backgroundColor},
           {"--border", "", "Draws a border. The imperative form has none.", &request->border}}),
      .example = "quorix info --form imperative --locale es --width 343 --scale 3 --out info.png",
      .run = [request] { return info(*request); },
  };
}

}  // namespace quorix::tool
