#include "tools/quorix/WidgetOutput.h"

#include "platform/render/ScenePrinter.h"
#include "qt/StillScene.h"
#include "tools/quorix/PictureFile.h"

namespace quorix::tool {
namespace {

std::string json(const WidgetRequest& request, const qt::StillScene& still) {
  std::string members;
  if (request.frames) members = "\"frames\": " + render::framesToJSON(still.whole());
  if (request.accessibility) {
    if (!members.empty()) members += ",\n";
    members += "\"accessibility\": " + render::accessibilityToJSON(still.topmost());
  }
  return "{" + members + "}\n";
}

std::string text(const WidgetRequest& request, const qt::StillScene& still,
                 const std::function<std::string()>& printTree) {
  std::string result;
  const auto add = [&](bool wanted, const auto& print) {
    if (!wanted) return;
    if (!result.empty()) result += '\n';
    result += print();
  };
  add(request.tree, printTree);
  add(request.frames, [&] { return render::printFrames(still.whole()); });
  add(request.accessibility, [&] { return render::printAccessibility(still.topmost()); });
  return result;
}

}  // namespace

Outcome showWidget(const swiftui::View& view, const WidgetRequest& request,
                   const std::function<std::string()>& printTree) {
  const qt::StillScene still = qt::stillScene(view, request.picture);
  if (request.out) {
    const auto failure = writePicture(still.whole(), request.picture, *request.out);
    if (failure) return *failure;
  }
  return request.json ? json(request, still) : text(request, still, printTree);
}

}  // namespace quorix::tool
