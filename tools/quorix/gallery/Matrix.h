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

// Every screen that the widgets must look right on: one table for each thing that varies. The
// gallery shows their product and the tests hold it; a new row here is shown and held at once.
namespace quorix::gallery {

/// A value with the name it has on a command line and in addresses, and the one for reading.
template <class Value>
struct Choice {
  std::string_view name;
  std::string_view title;
  Value value;
};

enum class Widget : std::uint8_t { row, sheet, info, imperativeInfo, overlay };

/// A language, with a shopper whose fees are long in it.
struct Language {
  layout::LayoutDirection direction;
  std::string_view currency;
  std::int64_t fee;         ///< in hundredths of the currency's unit
  std::int64_t reducedFee;  ///< likewise
  bool builtIn;             ///< the score widget has texts of its own in it
};

/// A phone held upright, or a tablet. Points.
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
    {"en", "English", {leftToRight, "GBP", 123'400, 99'900, true}},
    {"es", "Español", {leftToRight, "EUR", 1'234'500, 999'900, true}},
    {"de", "Deutsch", {leftToRight, "CHF", 123'400, 99'900, false}},
    {"ar", "العربية", {rightToLeft, "AED", 123'400, 99'900, false}},
    {"ja", "日本語", {leftToRight, "JPY", 1'234'500, 987'600, false}},
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

/// One screen: a value of each table.
struct Cell {
  const Choice<Widget>* widget;
  const Choice<Language>* language;
  const Choice<graphics::Appearance>* appearance;
  const Choice<swiftui::ContentSizeCategory>* textSize;
  const Choice<Reading>* reading;
  const Choice<Screen>* screen;

  layout::LayoutDirection direction() const;
  /// "sheet-es-dark-largest-own-320": an anchor, a file name, a test's name.
  std::string id() const;
};

/// Which part of the matrix is wanted; what is absent is wanted whole. The names are those of the
/// tables.
struct Selection {
  std::optional<std::string> widget = {};
  std::optional<std::string> language = {};
  std::optional<std::string> appearance = {};
  std::optional<std::string> textSize = {};
  std::optional<std::string> reading = {};
  std::optional<std::string> screen = {};
};

/// The cells of `selection`: by language, then widget, and within them the rest in table order.
std::vector<Cell> cells(const Selection& selection = {});

/// A handful that shows the range.
std::vector<Cell> showcase();

}  // namespace quorix::gallery
