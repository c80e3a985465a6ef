#include "tools/quorix/ScoreRequest.h"

#include <QLocale>

#include "platform/swiftui/ContentSizeCategory.h"
#include "tools/quorix/OptionReader.h"
#include "tools/quorix/TokenInput.h"

namespace quorix::tool {
namespace {

using layout::LayoutDirection;

constexpr OptionReader::Range lengths{1, 10000};  // points
constexpr OptionReader::Range scales{0.5, 10};

constexpr Option table[] = {
    {"--token", "TOKEN", "The shopper's token, or - to read it from the standard input."},
    {"--locale", "CODE", "Language code of the texts (default en)."},
    {"--client-id", "ID", "The retailer's client id (default demo)."},
    {"--sheet", "", "Opens the detail sheet, as a tap on the row does."},
    {"--out", "FILE.png", "Writes the picture."},
    {"--tree", "", "Prints the view tree: every element and modifier."},
    {"--frames", "",
     "Prints where everything stands, in points from the top left:\nx, y, width, "
     "height."},
    {"--accessibility", "",
     "Prints what a screen reader meets, in order. This is the\ndefault when "
     "no output is named."},
    {"--json", "", "Prints frames and accessibility as one JSON object."},
    {"--width", "POINTS",
     "Width of the row, with --sheet of the window, 1 to 10000\n"
     "(default 375)."},
    {"--height", "POINTS",
     "Height, 1 to 10000 (default what the row needs, with --sheet\ntwice the "
     "width)."},
    {"--scale", "FACTOR", "Pixels for each point, 0.5 to 10 (default 1)."},
    {"--appearance", "NAME", "light or dark (default light)."},
    {"--text-size", "NAME",
     "The user's text size; names below (default large). Only the\nfaces "
     "given with the next two options follow it."},
    {"--regular-font", "FACE",
     "Name of a face, or a font file, for regular text (default the\n"
     "library's own)."},
    {"--semi-bold-font", "FACE", "Likewise for emphasised text."},
    {"--direction", "NAME", "ltr or rtl (default that of the locale's script)."},
    {"--translations", "FILE.json",
     "Replaces the built-in texts, as a fetched table would:\n"
     "{\"returns\": {\"title\": \"...\", ...}, \"labels\": {...},\n"
     "\"actions\": {...}}."},
};

LayoutDirection directionOf(const std::string& locale) {
  const QLocale known(QString::fromStdString(locale));
  return known.textDirection() == Qt::RightToLeft ? LayoutDirection::rightToLeft
                                                  : LayoutDirection::leftToRight;
}

swiftui::Environment readEnvironment(OptionReader& read, const std::string& locale) {
  swiftui::Environment environment;
  environment.language = locale;
  environment.scale = read.number("--scale", 1, scales);
  if (read.choice("--appearance", {"light", "dark"}) == 1) {
    environment.appearance = graphics::Appearance::dark;
  }
  environment.direction = directionOf(locale);
  if (const auto direction = read.choice("--direction", {"ltr", "rtl"})) {
    environment.direction =
        *direction == 1 ? LayoutDirection::rightToLeft : LayoutDirection::leftToRight;
  }
  const std::string size = read.text("--text-size", "large");
  const auto category = swiftui::contentSizeCategoryNamed(size);
  if (!category) read.fail("--text-size knows no \"" + size + "\"");
  environment.textSize = category.value_or(environment.textSize);
  return environment;
}

void readOutputs(OptionReader& read, const Arguments& arguments, ScoreRequest& request) {
  request.out = arguments.value("--out");
  if (request.out && !request.out->ends_with(".png")) {
    read.fail("--out wants a file that ends in .png, not \"" + *request.out + '"');
  }
  request.tree = arguments.has("--tree");
  request.frames = arguments.has("--frames");
  request.json = arguments.has("--json");
  const bool nothingNamed = !request.out && !request.tree && !request.frames;
  request.accessibility = arguments.has("--accessibility") || nothingNamed;
  if (request.json && request.tree) read.fail("--tree has no JSON form");
  if (request.json && !request.frames && !request.accessibility) {
    read.fail("--json wants --frames or --accessibility");
  }
}

}  // namespace

const std::span<const Option> ScoreRequest::options = table;

std::variant<ScoreRequest, Failure> ScoreRequest::read(const Arguments& arguments) {
  OptionReader read(arguments);
  ScoreRequest request;
  const std::string token = read.required("--token");
  request.clientId = read.text("--client-id", "demo");
  request.locale = read.text("--locale", "en");
  request.regularFont = arguments.value("--regular-font");
  request.semiBoldFont = arguments.value("--semi-bold-font");
  request.translations = arguments.value("--translations");
  request.picture.environment = readEnvironment(read, request.locale);
  request.picture.width = read.number("--width", request.picture.width, lengths);
  request.picture.height = read.optionalNumber("--height", lengths);
  request.picture.sheet = arguments.has("--sheet");
  readOutputs(read, arguments, request);
  if (read.failure()) return *read.failure();
  auto text = tokenText(token);
  if (auto* failure = std::get_if<Failure>(&text)) return std::move(*failure);
  request.token = std::get<std::string>(std::move(text));
  return request;
}

}  // namespace quorix::tool
