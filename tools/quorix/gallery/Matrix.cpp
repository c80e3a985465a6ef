#include "tools/quorix/gallery/Matrix.h"

#include <utility>

namespace quorix::gallery {
layout::LayoutDirection Cell::direction() const {
  const layout::LayoutDirection own = language->value.direction;
  if (reading->value == Reading::own) return own;
  return own == leftToRight ? rightToLeft : leftToRight;
}

std::string Cell::names(char separator) const {
  std::string names(widget->name);
  for (const std::string_view part :
       {language->name, appearance->name, textSize->name, reading->name, screen->name}) {
    names += separator;
    names += part;
  }
  return names;
}

std::vector<Cell> cells(const Selection& selection) {
  std::vector<Cell> all(1);
  const auto multiply = [&](auto member, const auto& table, const auto& wanted) {
    std::vector<Cell> before = std::exchange(all, {});
    for (Cell cell : before) {
      for (const auto& choice : table) {
        if (wanted && choice.name != *wanted) continue;
        cell.*member = &choice;
        all.push_back(cell);
      }
    }
  };
  multiply(&Cell::language, languages, selection.language);
  multiply(&Cell::widget, widgets, selection.widget);
  multiply(&Cell::screen, screens, selection.screen);
  multiply(&Cell::textSize, textSizes, selection.textSize);
  multiply(&Cell::appearance, appearances, selection.appearance);
  multiply(&Cell::reading, readings, selection.reading);
  return all;
}

std::vector<Cell> showcase() {
  const Selection picks[] = {
      {"sheet", "es", "light", "default", "own", "320"},
      {"sheet", "ar", "dark", "default", "own", "320"},
      {"row", "es", "light", "default", "own", "320"},
      {"row", "ar", "dark", "default", "own", "320"},
      {"row", "ja", "light", "accessibility", "own", "320"},
      {"row", "en", "dark", "accessibility", "own", "320"},
      {"info", "de", "light", "largest", "own", "320"},
      {"imperative-info", "ar", "dark", "default", "own", "320"},
  };
  std::vector<Cell> all;
  for (const Selection& pick : picks) all.push_back(cells(pick).at(0));
  return all;
}

}  // namespace quorix::gallery
