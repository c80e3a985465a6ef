#include "tools/quorix/WidgetLook.h"

#include <QLocale>
#include <utility>

#include "tools/quorix/Faces.h"

namespace quorix::tool {

using layout::LayoutDirection;

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

}  // namespace quorix::tool
