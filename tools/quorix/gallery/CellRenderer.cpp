#include "tools/quorix/gallery/CellRenderer.h"

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

constexpr double demoScore = 0.82;
constexpr double aboveSheet = 24;  // visible points of the dimmed window
constexpr std::string_view shopper = "Ann";

/// A host's faces, which scale with the user's text size, unlike the library's own.
const std::string& regularFace() { return TovaFont::regular().name(); }
constexpr std::string_view semiBoldFace = "TovaSansLatin-SemiBold";

std::shared_ptr<const TranslationTable> readTable(std::string_view language) {
  QFile file(QStringLiteral(":/gallery/%1.json")
                 .arg(QString::fromUtf8(language.data(), static_cast<qsizetype>(language.size()))));
  if (!file.open(QIODevice::ReadOnly)) return nullptr;
  const auto result = readTranslationTable(file.readAll().toStdString());
  const auto* table = std::get_if<std::shared_ptr<const TranslationTable>>(&result);
  return table ? *table : nullptr;
}

InfoWidgetStyle infoStyle() {
  return {regularFace(), std::string(semiBoldFace), std::nullopt, true};
}

swiftui::View infoWidgetOf(std::string_view name, std::string_view language) {
  const InfoWidgetStyle style = infoStyle();
  return InfoWidgetView{std::make_shared<InfoWidgetViewModel>(
      std::string(name), std::string(language),
      SwiftUIStyleConfiguration{style.regularFont, style.semiBoldFont, style.backgroundColor,
                                style.showBorder})};
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

CellRenderer::CellRenderer() {
  qt::installEngine();
  foundation::URLSession::shared().setNetworkEnabled(false);
  for (const auto& language : languages) {
    if (!language.value.builtIn) tables_[language.name] = readTable(language.name);
  }
}

swiftui::View CellRenderer::scoreWidget(const Cell& cell) const {
  const Language& language = cell.language->value;
  const std::string code(cell.language->name);
  const TokenData figures{demoScore, std::string(language.currency), language.fee,
                          language.reducedFee};
  const ScoreWidgetStyle style{regularFace(), std::string(semiBoldFace)};
  const auto texts = LocalizationRepository::make(code);
  const auto table = tables_.find(cell.language->name);
  if (table != tables_.end() && table->second) texts->strings = table->second;
  return ScoreWidgetView{std::make_shared<ScoreWidgetViewModel>("gallery", figures, code, style),
                         texts};
}

CellRenderer::Shown CellRenderer::render(const Cell& cell, double scale) const {
  const qt::PictureOptions options = optionsOf(cell, scale);
  const std::string code(cell.language->name);
  if (cell.widget->value == Widget::imperativeInfo) {
    const auto widget = InfoWidgetBuilder::buildUIKitInfoWidgetView(code, infoStyle());
    takeTurn();
    qt::StillScene still = qt::stillScene(swiftui::hosting(widget), options);
    return {std::move(still), uikit::printViews(*widget)};
  }
  const swiftui::View view = cell.widget->value == Widget::info
                                 ? InfoWidgetBuilder::buildSwiftUIInfoWidgetView(code, infoStyle())
                             : cell.widget->value == Widget::overlay ? infoWidgetOf(shopper, code)
                                                                     : scoreWidget(cell);
  return {qt::stillScene(view, options), swiftui::printTree(view)};
}

QImage picture(const CellRenderer::Shown& shown, double scale) {
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
