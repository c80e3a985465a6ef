#include "tools/quorix/preview/PreviewChoices.h"

#include <algorithm>
#include <array>

#include "examples/common/TokenMint.h"
#include "tools/quorix/OptionReader.h"
#include "tools/quorix/TokenInput.h"
#include "tools/quorix/WidgetOptions.h"

namespace quorix::tool {
namespace {

constexpr std::string_view widgetNames[] = {"score", "info", "imperative"};
constexpr std::string_view shopperNames[] = {"own", "discount", "none",
                                             "yen", "kronor",   "unreadable"};

constexpr auto table = std::to_array<Option>({
    {"--widget", "NAME", "{} (default score).", widgetNames},
    {"--shopper", "NAME", "{} (default own with TOKEN, else discount).", shopperNames},
    localeOption,
    {"--translations", "FILE.json",
     "Replaces the score widget's texts, as a fetched table would, and is followed."},
    {"--resources", "FOLDER",
     "String tables (en.lproj/Localizable.strings), assets and interface files that replace the "
     "library's own, file by file, and are followed."},
    appearanceOption,
    textSizeOption,
    regularFontOption,
    semiBoldFontOption,
    directionOption,
    {"--width", "POINTS", "Width of the screen, 240 to 1024 (default 375)."},
    sheetOption,
    {"--out", "FILE.png", "Writes a picture of the screen each time that it changes."},
});

std::vector<PreviewChoices::Shopper> standIns() {
  const std::string whole = examples::mintToken({0.82, "EUR", 600, 300});
  return {
      {"discount", QStringLiteral("Discount, in euros"), whole},
      {"none", QStringLiteral("No discount, in pounds"),
       examples::mintToken({0.06, "GBP", 500, 250})},
      {"yen", QStringLiteral("Yen"), examples::mintToken({0.91, "JPY", 55000, 33000})},
      {"kronor", QStringLiteral("Kronor"), examples::mintToken({0.74, "SEK", 6900, 3900})},
      {"unreadable", QStringLiteral("Unreadable token"), whole.substr(0, whole.size() / 2)},
  };
}

void readShopper(OptionReader& read, const std::optional<std::string>& token,
                 PreviewChoices& choices) {
  choices.shoppers = standIns();
  if (token) {
    const auto text = tokenText(*token);
    if (const auto* failure = std::get_if<Failure>(&text)) return read.fail(failure->message);
    choices.shoppers.insert(choices.shoppers.begin(),
                            {"own", QStringLiteral("Your own"), std::get<std::string>(text)});
  }
  const std::string name = read.text("--shopper", choices.shoppers.front().name);
  const auto found = std::ranges::find(choices.shoppers, name, &PreviewChoices::Shopper::name);
  if (found == choices.shoppers.end()) return read.fail("--shopper own wants a TOKEN");
  choices.shopper = static_cast<std::size_t>(found - choices.shoppers.begin());
}

}  // namespace

const std::span<const Option> PreviewChoices::options = table;

std::variant<PreviewChoices, Failure> PreviewChoices::read(const Arguments& arguments) {
  OptionReader read(arguments);
  PreviewChoices choices{WidgetLook::from(read)};
  choices.widget = static_cast<Widget>(read.choice("--widget").value_or(0));
  choices.translations = read.optionalText("--translations");
  choices.resources = read.optionalText("--resources");
  choices.width = static_cast<int>(read.number("--width", choices.width, {narrowest, widest}));
  choices.sheet = read.has("--sheet");
  choices.out = read.optionalText("--out");
  readShopper(read, arguments.operand(), choices);
  if (read.failure()) return *read.failure();
  return choices;
}

QStringList PreviewChoices::toWords() const {
  QStringList words;
  const auto add = [&](const char* option, std::string_view value) {
    words << QLatin1String(option)
          << QString::fromUtf8(value.data(), static_cast<qsizetype>(value.size()));
  };
  const auto addIf = [&](const char* option, const std::optional<std::string>& value) {
    if (value) add(option, *value);
  };
  add("--widget", widgetNames[static_cast<int>(widget)]);
  add("--shopper", shoppers[shopper].name);
  add("--locale", locale);
  addIf("--translations", translations);
  addIf("--resources", resources);
  addIf("--regular-font", regularFont);
  addIf("--semi-bold-font", semiBoldFont);
  add("--appearance", appearance == graphics::Appearance::dark ? "dark" : "light");
  add("--text-size", nameOf(textSize));
  if (direction)
    add("--direction", *direction == layout::LayoutDirection::rightToLeft ? "rtl" : "ltr");
  add("--width", std::to_string(width));
  if (sheet) words << QStringLiteral("--sheet");
  addIf("--out", out);
  if (shoppers.front().name == "own") add("--", shoppers.front().token);
  return words;
}

}  // namespace quorix::tool
