#include "tools/quorix/gallery/CellRendering.h"

#include <QEventLoop>
#include <QFile>
#include <algorithm>
#include <optional>
#include <utility>

#include "QuorixWidgets/info/InfoWidgetBuilder.h"
#include "QuorixWidgets/info/InfoWidgetView.h"
#include "QuorixWidgets/localization/TovaFont.h"
#include "QuorixWidgets/localization/Translations.h"
#include "QuorixWidgets/score/ScoreWidgetView.h"
#include "platform/foundation/MainQueue.h"
#include "platform/foundation/URLSession.h"
#include "platform/swiftui/TreePrinter.h"
#include "platform/swiftui/UIViewRepresentable.h"
#include "platform/uikit/ViewPrinter.h"
#include "qt/Engine.h"
#include "qt/Picture.h"

namespace quorix::gallery {
namespace {

constexpr double aboveSheet = 24;  // visible points of the dimmed window

/// A host's faces, which scale with the user's text size, unlike the library's own.
const std::string& regularFace() { return TovaFont::regular().name(); }
constexpr std::string_view semiBoldFace = "TovaSansLatin-SemiBold";

/// Whether the score widget has built-in texts in `language`.
bool isBuiltIn(const std::string& language) {
  return language == "en" || builtInTranslations(language) != builtInTranslations("en");
}

/// The texts of a language without built-in ones.
std::shared_ptr<const TranslationTable> readTable(const std::string& language) {
  QFile file(QStringLiteral(":/gallery/%1.json").arg(QString::fromStdString(language)));
  const bool found = file.open(QIODevice::ReadOnly);
  const auto result = readTranslationTable(found ? file.readAll().toStdString() : "");
  const auto* table = std::get_if<std::shared_ptr<const TranslationTable>>(&result);
  return table ? *table : builtInTranslations(language);
}

swiftui::View scoreWidget(const Cell& cell) {
  const Language& language = cell.language->value;
  const std::string code(cell.language->name);
  const TokenData figures{0.82, std::string(language.currency), language.fee, language.reducedFee};
  const ScoreWidgetStyle style{regularFace(), std::string(semiBoldFace)};
  const auto texts = LocalizationRepository::make(code);
  if (!isBuiltIn(code)) texts->strings = readTable(code);
  return ScoreWidgetView{std::make_shared<ScoreWidgetViewModel>("gallery", figures, code, style),
                         texts};
}

/// As the builder makes it, but with the shopper's name on the page.
swiftui::View infoWidget(const Cell& cell) {
  const std::string code(cell.language->name);
  const bool isPersonal = cell.widget->value == Widget::overlay;
  return InfoWidgetView{std::make_shared<InfoWidgetViewModel>(
      isPersonal ? std::optional<std::string>("Ann") : std::nullopt, code,
      SwiftUIStyleConfiguration{regularFace(), std::string(semiBoldFace), std::nullopt, true})};
}

qt::PictureOptions optionsOf(const Cell& cell, double scale) {
  qt::PictureOptions options;
  options.width = cell.screen->value.width;
  options.environment = {cell.appearance->value, cell.direction(), cell.textSize->value, scale,
                         std::string(cell.language->name)};
  options.sheet = cell.widget->value == Widget::sheet || cell.widget->value == Widget::overlay;
  if (options.sheet) options.height = cell.screen->value.height;
  return options;
}

/// The top of a sheet's panel, in points from the display list's top.
std::optional<double> panelTop(const render::Scene& scene) {
  for (const render::Item& item : scene.items) {
    const auto* fill = std::get_if<render::FillItem>(&item);
    if (fill && fill->topCornerRadius > 0) return fill->frame.top();
  }
  return std::nullopt;
}

}  // namespace

void takeTurn() {
  QEventLoop loop;
  foundation::MainQueue::async([&] { loop.quit(); });
  loop.exec();
}

ShownCell render(const Cell& cell, double scale) {
  qt::installEngine();
  foundation::URLSession::shared().setNetworkEnabled(false);
  const qt::PictureOptions options = optionsOf(cell, scale);
  const auto declarative = [&](const swiftui::View& view) -> ShownCell {
    return {qt::stillScene(view, options), swiftui::printTree(view)};
  };
  switch (cell.widget->value) {
    case Widget::row:
    case Widget::sheet:
      return declarative(scoreWidget(cell));
    case Widget::info:
    case Widget::overlay:
      return declarative(infoWidget(cell));
    case Widget::imperativeInfo:
      break;
  }
  const auto widget = InfoWidgetBuilder::buildUIKitInfoWidgetView(
      cell.language->name, {regularFace(), std::string(semiBoldFace), std::nullopt, true});
  takeTurn();
  qt::StillScene still = qt::stillScene(swiftui::hosting(widget), options);
  return {std::move(still), uikit::printViews(*widget)};
}

QImage picture(const ShownCell& shown, double scale) {
  const render::Scene scene = shown.still.whole();
  qt::PictureOptions options;
  options.environment.appearance = scene.appearance;
  options.environment.scale = scale;
  const QImage whole = qt::paintPicture(scene, options);
  const auto panel = shown.still.sheet ? panelTop(*shown.still.sheet) : std::nullopt;
  if (!panel) return whole;
  const int top = static_cast<int>(std::max(0.0, (*panel - aboveSheet) * scale));
  return whole.copy(0, top, whole.width(), whole.height() - top);
}

}  // namespace quorix::gallery
