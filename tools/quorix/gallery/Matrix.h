#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/graphics/RGBA.h"
#include "platform/layout/Geometry.h"
#include "platform/swiftui/Environment.h"

// All screens on which the widgets must look right, with one table for each property that varies.
// The gallery shows all combinations and the tests check them, so a new row here is shown and
// tested.
namespace quorix::gallery {

/// A value, its name on command lines and in addresses, and its title.
template <class Value>
struct Choice {
  std::string_view name;
  std::string_view title;
  Value value;
};

enum class Widget : std::uint8_t { row, sheet, info, imperativeInfo, overlay };

/// A language, and fees that are long in it.
struct Language {
  layout::LayoutDirection direction;
  std::string_view currency;
  std::int64_t fee;         ///< in hundredths of the currency's unit
  std::int64_t reducedFee;  ///< in hundredths of the currency's unit
};

/// A phone in portrait orientation, or a tablet. Points.
struct Screen {
  double width;
  double height;
};

enum class Reading : std::uint8_t { own, opposite };

inline constexpr auto widgets = std::to_array<Choice<Widget>>({
    {"row", "Score row", Widget::row},
    {"sheet", "Detail sheet", Widget::sheet},
    {"info", "Info widget", Widget::info},
    {"imperative-info", "Info widget, imperative", Widget::imperativeInfo},
    {"overlay", "Web overlay", Widget::overlay},
});

inline constexpr auto leftToRight = layout::LayoutDirection::leftToRight;
inline constexpr auto rightToLeft = layout::LayoutDirection::rightToLeft;

inline constexpr auto languages = std::to_array<Choice<Language>>({
    {"en", "English", {leftToRight, "GBP", 123'400, 99'900}},
    {"es", "Español", {leftToRight, "EUR", 1'234'500, 999'900}},
    {"de", "Deutsch", {leftToRight, "CHF", 123'400, 99'900}},
    {"ar", "العربية", {rightToLeft, "AED", 123'400, 99'900}},
    {"ja", "日本語", {leftToRight, "JPY", 1'234'500, 987'600}},
});

inline constexpr auto appearances = std::to_array<Choice<graphics::Appearance>>({
    {"light", "light", graphics::Appearance::light},
    {"dark", "dark", graphics::Appearance::dark},
});

inline constexpr auto textSizes = std::to_array<Choice<swiftui::ContentSizeCategory>>({
    {"default", "default text", swiftui::ContentSizeCategory::large},
    {"largest", "largest text", swiftui::ContentSizeCategory::extraExtraExtraLarge},
    {"accessibility", "largest accessibility text",
     swiftui::ContentSizeCategory::accessibilityExtraExtraExtraLarge},
});

inline constexpr auto readings = std::to_array<Choice<Reading>>({
    {"own", "own direction", Reading::own},
    {"opposite", "opposite direction", Reading::opposite},
});

inline constexpr auto screens = std::to_array<Choice<Screen>>({
    {"320", "320 wide", {320, 640}},
    {"390", "390 wide", {390, 844}},
    {"768", "768 wide", {768, 1024}},
});

/// One screen: a value from each table.
struct Cell {
  const Choice<Widget>* widget = nullptr;
  const Choice<Language>* language = nullptr;
  const Choice<graphics::Appearance>* appearance = nullptr;
  const Choice<swiftui::ContentSizeCategory>* textSize = nullptr;
  const Choice<Reading>* reading = nullptr;
  const Choice<Screen>* screen = nullptr;

  layout::LayoutDirection direction() const;
  /// The names of all values: with hyphens "sheet-es-dark-largest-own-320", an anchor, a file name
  /// and a test's name.
  std::string names(char separator = '-') const;
};

/// A part of the matrix, by the names in the tables. An absent value selects the whole table.
struct Selection {
  std::optional<std::string> widget = {};
  std::optional<std::string> language = {};
  std::optional<std::string> appearance = {};
  std::optional<std::string> textSize = {};
  std::optional<std::string> reading = {};
  std::optional<std::string> screen = {};
};

/// The cells of `selection`, ordered by language, then by widget, then as in the tables.
std::vector<Cell> cells(const Selection& selection = {});

/// A few cells that show the range.
std::vector<Cell> showcase();

}  // namespace quorix::gallery
