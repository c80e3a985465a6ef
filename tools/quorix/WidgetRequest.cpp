#include "tools/quorix/WidgetRequest.h"

#include <QFileInfo>
#include <QLocale>
#include <string>
#include <utility>
#include <variant>

#include "QuorixWidgets/localization/QuorixFont.h"
#include "platform/graphics/FontManager.h"
#include "qt/text/QtFonts.h"
#include "tools/quorix/Failure.h"
#include "tools/quorix/Files.h"

namespace quorix::tool {
namespace {

using graphics::FontManager;
using graphics::GraphicsFont;
using layout::LayoutDirection;

bool looksLikeFile(const QString& text) {
  return text.contains(QLatin1Char('/')) || text.endsWith(QLatin1String(".ttf")) ||
         text.endsWith(QLatin1String(".otf")) || QFileInfo(text).isFile();
}

std::variant<std::string, Failure> registeredFile(const std::string& path) {
  auto bytes = readInputFile(path);
  if (auto* failure = std::get_if<Failure>(&bytes)) return *failure;
  const auto font =
      GraphicsFont::fromData(foundation::Data(std::move(std::get<std::string>(bytes))));
  if (!font) return Failure::refused(path + " is not a font file with one named face");
  const std::string& name = font->postScriptName();
  if (FontManager::shared().registerGraphicsFont(*font)) return name;
  // Both faces may come from the same file.
  if (FontManager::shared().data(name) == font->data()) return name;
  return Failure::refused(path + ": there is a face named \"" + name +
                          "\" already; give that name to use it");
}

/// The name of the face `nameOrFile`: an available face's name, or a font file, whose face is
/// registered. Needs an application object.
std::variant<std::string, Failure> usableFace(const std::string& nameOrFile) {
  qt::QtFonts::installSystemLookup();
  // Register the library's own faces first, so that a file cannot take their names.
  QuorixFont::regular();
  QuorixFont::medium();
  if (looksLikeFile(QString::fromStdString(nameOrFile))) return registeredFile(nameOrFile);
  if (FontManager::shared().knows(nameOrFile)) return nameOrFile;
  return Failure::refused("there is no face named \"" + nameOrFile + '"');
}

}  // namespace

WidgetLook WidgetLook::from(OptionReader& read) {
  WidgetLook look;
  look.locale = read.text("--locale", look.locale);
  look.regularFont = read.optionalText("--regular-font");
  look.semiBoldFont = read.optionalText("--semi-bold-font");
  if (read.choice("--appearance") == 1) {
    look.appearance = graphics::Appearance::dark;
  }
  if (const auto direction = read.choice("--direction")) {
    look.direction = *direction == 1 ? LayoutDirection::rightToLeft : LayoutDirection::leftToRight;
  }
  if (const auto size = read.choice("--text-size")) {
    look.textSize = static_cast<swiftui::ContentSizeCategory>(*size);
  }
  return look;
}

LayoutDirection WidgetLook::readingDirection() const {
  if (direction) return *direction;
  const QLocale language(QString::fromStdString(locale));
  return language.textDirection() == Qt::RightToLeft ? LayoutDirection::rightToLeft
                                                     : LayoutDirection::leftToRight;
}

std::optional<Failure> WidgetLook::findFaces() {
  for (auto* face : {&regularFont, &semiBoldFont}) {
    if (!*face) continue;
    auto found = usableFace(**face);
    if (auto* failure = std::get_if<Failure>(&found)) return *failure;
    *face = std::get<std::string>(std::move(found));
  }
  return std::nullopt;
}

namespace {

constexpr OptionReader::Range lengths{1, 10000};  // points
constexpr OptionReader::Range scales{0.5, 10};

void readOutputs(OptionReader& read, WidgetRequest& request) {
  request.out = read.optionalText("--out");
  if (request.out && !request.out->ends_with(".png")) {
    read.fail("--out wants a file that ends in .png, not \"" + *request.out + '"');
  }
  request.tree = read.has("--tree");
  request.frames = read.has("--frames");
  request.json = read.has("--json");
  request.accessibility = read.has("--accessibility");
  if (request.json && request.tree) read.fail("--tree has no JSON form");
  if (request.frames || request.accessibility) return;
  request.frames = request.json;
  request.accessibility = request.json || (!request.out && !request.tree);
}

}  // namespace

WidgetRequest WidgetRequest::from(OptionReader& read) {
  WidgetRequest request{WidgetLook::from(read)};
  const double scale = read.number("--scale", 1, scales);
  request.picture.environment = {request.appearance, request.readingDirection(), request.textSize,
                                 scale, request.locale};
  request.picture.width = read.number("--width", request.picture.width, lengths);
  request.picture.height = read.optionalNumber("--height", lengths);
  request.picture.sheet = read.has("--sheet");
  readOutputs(read, request);
  return request;
}

}  // namespace quorix::tool
