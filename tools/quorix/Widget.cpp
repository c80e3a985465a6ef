#include "tools/quorix/Widget.h"

#include <QFileInfo>
#include <QLocale>
#include <cmath>

#include "QuorixWidgets/localization/QuorixFont.h"
#include "platform/graphics/FontManager.h"
#include "platform/render/ScenePrinter.h"
#include "qt/StillScene.h"
#include "tools/quorix/Files.h"
#include "tools/quorix/gallery/Pictures.h"

namespace quorix::tool {
namespace {

using graphics::FontManager;
using graphics::GraphicsFont;
using layout::LayoutDirection;
using swiftui::ContentSizeCategory;

constexpr std::string_view appearanceNames[] = {"light", "dark"};
constexpr std::string_view directionNames[] = {"ltr", "rtl"};

// Painting a hundred million pixels takes 400 megabytes.
constexpr double mostPixels = 1e8;

bool looksLikeFile(const QString& text) {
  return text.contains(QLatin1Char('/')) || text.endsWith(QLatin1String(".ttf")) ||
         text.endsWith(QLatin1String(".otf")) || QFileInfo(text).isFile();
}

/// Registers the face in the file `face`, and replaces `face` by its name.
std::optional<Failure> registerFile(std::string& face) {
  auto bytes = readInputFile(face);
  if (auto* failure = std::get_if<Failure>(&bytes)) return *failure;
  const auto font =
      GraphicsFont::fromData(foundation::Data(std::move(std::get<std::string>(bytes))));
  if (!font) return Failure::refused(face + " is not a font file with one named face");
  const std::string& name = font->postScriptName();
  FontManager& manager = FontManager::shared();
  // Both faces may come from the same file.
  if (!manager.registerGraphicsFont(*font) && manager.data(name) != font->data()) {
    return Failure::refused(face + ": there is a face named \"" + name +
                            "\" already; give that name to use it");
  }
  face = name;
  return std::nullopt;
}

/// Paints `scene` into the PNG file of `request`. On failure, an existing file stays unchanged.
std::optional<Failure> writeScene(const render::Scene& scene, const WidgetRequest& request) {
  const double scale = request.picture.environment.scale;
  const double width = scene.size.width * scale, height = scene.size.height * scale;
  const bool tooLarge = width * height > mostPixels;
  const QImage image = tooLarge ? QImage() : qt::paintPicture(scene, request.picture);
  if (!image.isNull()) return writeFile(*request.out, gallery::png(image));
  const auto pixels = [](double length) { return std::to_string(std::llround(std::ceil(length))); };
  return Failure::refused("a picture of " + pixels(width) + " x " + pixels(height) +
                          " pixels is too large");
}

}  // namespace

swiftui::Environment WidgetLook::environment(double scale) const {
  const QLocale language(QString::fromStdString(locale));
  const bool rightToLeft =
      direction ? *direction == 1 : language.textDirection() == Qt::RightToLeft;
  return {static_cast<graphics::Appearance>(appearance),
          rightToLeft ? LayoutDirection::rightToLeft : LayoutDirection::leftToRight,
          static_cast<ContentSizeCategory>(textSize), scale, locale};
}

std::optional<Failure> WidgetLook::findFaces() {
  // Register the library's own faces first, so that a file cannot take their names.
  QuorixFont::regular();
  QuorixFont::medium();
  for (auto* face : {&regularFont, &semiBoldFont}) {
    if (!*face) continue;
    if (looksLikeFile(QString::fromStdString(**face))) {
      if (auto failure = registerFile(**face)) return failure;
    } else if (!FontManager::shared().knows(**face)) {
      return Failure::refused("there is no face named \"" + **face + '"');
    }
  }
  return std::nullopt;
}

std::span<const std::string_view> textSizeNames() {
  static const auto all = [] {
    constexpr auto last = static_cast<int>(ContentSizeCategory::accessibilityExtraExtraExtraLarge);
    std::vector<std::string_view> names;
    for (int i = 0; i <= last; ++i) names.push_back(nameOf(static_cast<ContentSizeCategory>(i)));
    return names;
  }();
  return all;
}

std::vector<Option> withLook(WidgetLook& look, std::vector<Option> own) {
  own.insert(
      own.end(),
      {
          {"--locale", "CODE", "Language code of the texts (default en).", &look.locale},
          {"--appearance", "NAME", "{} (default light).", &look.appearance, oneOf(appearanceNames)},
          {"--text-size", "NAME",
           "The user's text size: {} (default large). Only the faces given with the next two "
           "options follow it.",
           &look.textSize, oneOf(textSizeNames())},
          {"--regular-font", "FACE",
           "Name of a face, or a font file, for regular text (default the library's own).",
           &look.regularFont},
          {"--semi-bold-font", "FACE", "Likewise for emphasised text.", &look.semiBoldFont},
          {"--direction", "NAME", "{} (default that of the locale's script).", &look.direction,
           oneOf(directionNames)},
      });
  return own;
}

std::vector<Option> withWidgetOptions(WidgetRequest& request, std::vector<Option> own) {
  qt::PictureOptions& picture = request.picture;
  own.insert(
      own.end(),
      {
          {"--sheet", "", "Opens the sheet, as a tap on the widget does.", &picture.sheet},
          {"--out", "FILE.png", "Writes the picture.", &request.out},
          {"--tree", "", "Prints the view tree: every element and what it was told.",
           &request.tree},
          {"--frames", "",
           "Prints where everything stands, in points from the top left: x, y, width, height.",
           &request.frames},
          {"--accessibility", "",
           "Prints what a screen reader meets, in order. This is the default when no output is "
           "named.",
           &request.accessibility},
          {"--json", "",
           "Prints frames and accessibility, or the one of them that is named, as one JSON object.",
           &request.json},
          {"--width", "POINTS",
           "Width of the widget, with --sheet of the window, {} (default 375).", &picture.width,
           between(1, 10000)},
          {"--height", "POINTS",
           "Height, {} (default what the widget needs, with --sheet twice the width).",
           &picture.height, between(1, 10000)},
          {"--scale", "FACTOR", "Pixels for each point, {} (default 1).",
           &picture.environment.scale, between(0.5, 10)},
      });
  return withLook(request, std::move(own));
}

std::optional<Failure> WidgetRequest::prepare() {
  if (out && !out->ends_with(".png")) {
    return Failure::usage("--out wants a file that ends in .png, not \"" + *out + '"');
  }
  if (json && tree) return Failure::usage("--tree has no JSON form");
  if (!frames && !accessibility) {
    frames = json;
    accessibility = json || (!out && !tree);
  }
  picture.environment = environment(picture.environment.scale);
  return findFaces();
}

Outcome showWidget(const swiftui::View& view, const WidgetRequest& request,
                   const std::function<std::string()>& printTree) {
  const qt::StillScene still = qt::stillScene(view, request.picture);
  if (request.out) {
    if (auto failure = writeScene(still.whole(), request)) return *std::move(failure);
  }
  std::string result;
  const auto add = [&](bool wanted, std::string_view separator, const auto& print) {
    if (!wanted) return;
    if (!result.empty()) result += separator;
    result += print();
  };
  if (request.json) {
    add(request.frames, "", [&] { return "\"frames\": " + render::framesToJSON(still.whole()); });
    add(request.accessibility, ",\n",
        [&] { return "\"accessibility\": " + render::accessibilityToJSON(still.topmost()); });
    return '{' + result + "}\n";
  }
  add(request.tree, "", printTree);
  add(request.frames, "\n", [&] { return render::printFrames(still.whole()); });
  add(request.accessibility, "\n", [&] { return render::printAccessibility(still.topmost()); });
  return result;
}

}  // namespace quorix::tool
