#include "tools/quorix/InfoCommand.h"

#include "QuorixWidgets/info/InfoWidgetBuilder.h"
#include "platform/swiftui/TreePrinter.h"
#include "platform/swiftui/UIViewRepresentable.h"
#include "platform/uikit/ViewPrinter.h"
#include "tools/quorix/InfoRequest.h"
#include "tools/quorix/PictureApplication.h"
#include "tools/quorix/StandInScreen.h"
#include "tools/quorix/WidgetOptions.h"
#include "tools/quorix/WidgetOutput.h"

namespace quorix::tool {
namespace {

Outcome showDeclarative(const InfoRequest& request, const InfoWidgetStyle& style) {
  const auto view = InfoWidgetBuilder::buildSwiftUIInfoWidgetView(request.locale, style);
  return showWidget(view, request, [&] { return swiftui::printTree(view); });
}

Outcome showImperative(const InfoRequest& request, const InfoWidgetStyle& style,
                       const PictureApplication& application) {
  const auto widget = InfoWidgetBuilder::buildUIKitInfoWidgetView(request.locale, style);
  application.takeTurn();  // brings the title
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
