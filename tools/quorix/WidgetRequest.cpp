#include "tools/quorix/WidgetRequest.h"

#include <QLocale>

#include "platform/swiftui/ContentSizeCategory.h"
#include "tools/quorix/Faces.h"

namespace quorix::tool {
namespace {

using layout::LayoutDirection;

constexpr OptionReader::Range lengths{1, 10000};  // points
constexpr OptionReader::Range scales{0.5, 10};

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

void readOutputs(OptionReader& read, WidgetRequest& request) {
  request.out = read.optionalText("--out");
  if (request.out && !request.out->ends_with(".png")) {
    read.fail("--out wants a file that ends in .png, not \"" + *request.out + '"');
  }
  request.tree = read.has("--tree");
  request.frames = read.has("--frames");
  request.json = read.has("--json");
  const bool nothingNamed = !request.out && !request.tree && !request.frames;
  request.accessibility = read.has("--accessibility") || nothingNamed;
  if (request.json && request.tree) read.fail("--tree has no JSON form");
  if (request.json && !request.frames && !request.accessibility) {
    read.fail("--json wants --frames or --accessibility");
  }
}

std::optional<Failure> findFace(std::optional<std::string>& face) {
  if (!face) return std::nullopt;
  auto found = usableFace(*face);
  if (auto* failure = std::get_if<Failure>(&found)) return *failure;
  face = std::get<std::string>(std::move(found));
  return std::nullopt;
}

}  // namespace

WidgetRequest WidgetRequest::from(OptionReader& read) {
  WidgetRequest request;
  request.locale = read.text("--locale", "en");
  request.regularFont = read.optionalText("--regular-font");
  request.semiBoldFont = read.optionalText("--semi-bold-font");
  request.picture.environment = readEnvironment(read, request.locale);
  request.picture.width = read.number("--width", request.picture.width, lengths);
  request.picture.height = read.optionalNumber("--height", lengths);
  request.picture.sheet = read.has("--sheet");
  readOutputs(read, request);
  return request;
}

std::optional<Failure> WidgetRequest::findFaces() {
  if (auto failure = findFace(regularFont)) return failure;
  return findFace(semiBoldFont);
}

}  // namespace quorix::tool
