#include "tools/quorix/WidgetOutput.h"

#include <cmath>
#include <optional>
#include <string>

#include "platform/render/Scene.h"
#include "platform/render/ScenePrinter.h"
#include "qt/Picture.h"
#include "qt/StillScene.h"
#include "tools/quorix/Failure.h"
#include "tools/quorix/Files.h"

namespace quorix::tool {
namespace {

// Painting a hundred million pixels takes 400 megabytes.
constexpr double mostPixels = 1e8;

std::string pixels(double width, double height) {
  const auto whole = [](double length) {
    return std::to_string(static_cast<long long>(std::ceil(length)));
  };
  return whole(width) + " x " + whole(height) + " pixels";
}

/// Paints `scene` into a PNG file at `path`. On failure, an existing file stays unchanged.
std::optional<Failure> writePicture(const render::Scene& scene, const qt::PictureOptions& options,
                                    const std::string& path) {
  const double width = scene.size.width * options.environment.scale;
  const double height = scene.size.height * options.environment.scale;
  const bool tooLarge = width * height > mostPixels;
  const QImage image = tooLarge ? QImage() : qt::paintPicture(scene, options);
  if (image.isNull()) {
    return Failure::refused("a picture of " + pixels(width, height) + " is too large");
  }
  return tool::writePicture(image, path);
}

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
