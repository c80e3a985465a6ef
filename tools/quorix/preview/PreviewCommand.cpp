#include <QApplication>
#include <memory>

#include "QuorixWidgets/localization/ResourceBundle.h"
#include "examples/common/TokenMint.h"
#include "tools/quorix/Application.h"
#include "tools/quorix/Commands.h"
#include "tools/quorix/Texts.h"
#include "tools/quorix/Tokens.h"
#include "tools/quorix/preview/Preview.h"

namespace quorix::tool {
namespace {

constexpr std::string_view widgetNames[] = {"score", "info", "imperative"};
constexpr std::string_view shopperNames[] = {"discount", "none",       "yen",
                                             "kronor",   "unreadable", "own"};

Outcome preview(PreviewChoices choices) {
  if (auto failure = choices.prepare()) return *std::move(failure);
  if (choices.resources) {
    auto theme = foundation::Bundle::open(*choices.resources);
    if (!theme) return Failure::refused("can't read the folder " + *choices.resources);
    setTheme(std::move(theme));
  }
  if (choices.translations) {
    const auto read = Translations::read(*choices.translations);
    if (const auto* failure = std::get_if<Failure>(&read)) return *failure;
  }
  const auto application = startApplication(true);
  choices.givenFaces = {choices.regularFont, choices.semiBoldFont};
  if (auto failure = choices.findFaces()) return *std::move(failure);
  Preview window(choices);
  window.open();
  QApplication::exec();
  return std::string();
}

}  // namespace

std::vector<Option> PreviewChoices::options() {
  return withLook(
      *this,
      {
          {"--widget", "NAME", "{} (default score).", &widget, oneOf(widgetNames)},
          {"--shopper", "NAME", "{} (default own with TOKEN, else discount).", &shopper,
           oneOf(shopperNames)},
          {"--translations", "FILE.json",
           "Replaces the score widget's texts, as a fetched table would, and is followed.",
           &translations},
          {"--resources", "FOLDER",
           "String tables (en.lproj/Localizable.strings), assets and interface files that replace "
           "the library's own, file by file, and are followed.",
           &resources},
          {"--width", "POINTS", "Width of the screen, {} (default 375).", &width,
           between(narrowest, widest)},
          {"--sheet", "", "Opens the sheet, as a tap on the widget does.", &sheet},
          {"--out", "FILE.png", "Writes a picture of the screen each time that it changes.", &out},
      });
}

std::optional<Failure> PreviewChoices::prepare() {
  const std::string whole = examples::mintToken({0.82, "EUR", 600, 300});
  shoppers = {
      {QStringLiteral("Discount, in euros"), whole},
      {QStringLiteral("No discount, in pounds"), examples::mintToken({0.06, "GBP", 500, 250})},
      {QStringLiteral("Yen"), examples::mintToken({0.91, "JPY", 55000, 33000})},
      {QStringLiteral("Kronor"), examples::mintToken({0.74, "SEK", 6900, 3900})},
      {QStringLiteral("Unreadable token"), whole.substr(0, whole.size() / 2)},
  };
  const int own = static_cast<int>(shoppers.size());
  if (!shopper) shopper = token ? own : 0;
  if (!token && *shopper == own) return Failure::usage("--shopper own wants a TOKEN");
  if (!token) return std::nullopt;
  shoppers.push_back({QStringLiteral("Your own"), *token});
  return readTokenInput(shoppers.back().token);
}

Command previewCommand() {
  const auto choices = std::make_shared<PreviewChoices>();
  return {
      .name = "preview",
      .purpose =
          "Opens a window on a widget, with controls, and follows files as they change.\n"
          "Texts are not fetched: they are the built-in ones or those of a file.",
      .options = choices->options(),
      .operand = {"[TOKEN]", "",
                  "A shopper of your own beside the ones offered, or - to read it from the "
                  "standard input.",
                  &choices->token},
      .example = "quorix preview --locale es --resources QuorixWidgets/resources",
      .run = [choices] { return preview(*choices); },
  };
}

}  // namespace quorix::tool
