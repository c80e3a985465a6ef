#include "tools/quorix/gallery/Matrix.h"

namespace quorix::gallery {
namespace {

/// The entries of `table` whose names are in `wanted`.
template <class Table>
auto chosen(const Table& table, const std::optional<std::string>& wanted) {
  std::vector<const typename Table::value_type*> result;
  for (const auto& choice : table) {
    if (!wanted || choice.name == *wanted) result.push_back(&choice);
  }
  return result;
}

}  // namespace

layout::LayoutDirection Cell::direction() const {
  const layout::LayoutDirection own = language->value.direction;
  if (reading->value == Reading::own) return own;
  return own == leftToRight ? rightToLeft : leftToRight;
}

std::string Cell::id() const {
  std::string id(widget->name);
  for (const std::string_view part :
       {language->name, appearance->name, textSize->name, reading->name, screen->name}) {
    id += '-';
    id += part;
  }
  return id;
}

std::vector<Cell> cells(const Selection& selection) {
  std::vector<Cell> all;
  for (const auto* language : chosen(languages, selection.language)) {
    for (const auto* widget : chosen(widgets, selection.widget)) {
      for (const auto* screen : chosen(screens, selection.screen)) {
        for (const auto* textSize : chosen(textSizes, selection.textSize)) {
          for (const auto* appearance : chosen(appearances, selection.appearance)) {
            for (const auto* reading : chosen(readings, selection.reading)) {
              all.push_back({widget, language, appearance, textSize, reading, screen});
            }
          }
        }
      }
    }
  }
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
