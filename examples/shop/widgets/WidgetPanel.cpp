#include "examples/shop/widgets/WidgetPanel.h"

#include <optional>
#include <string>

#include "QuorixWidgets/info/InfoWidgetBuilder.h"
#include "QuorixWidgets/score/ScoreWidgetBuilder.h"
#include "examples/shop/Shop.h"
#include "platform/swiftui/UIViewRepresentable.h"

namespace quorix::examples {
namespace {

std::optional<std::string> nonEmpty(const QString& text) {
  return text.isEmpty() ? std::nullopt : std::optional(text.toStdString());
}

}  // namespace

WidgetPanel::WidgetPanel(Kind kind, Shop& shop, QWidget* parent)
    : ViewWidget(parent), kind_(kind), shop_(shop) {
  connect(&shop, &Shop::changed, this, &WidgetPanel::follow);
  follow();
}

void WidgetPanel::follow() {
  const QStringList parts{shop_.token(), shop_.locale(), shop_.regularFont(), shop_.semiBoldFont()};
  if (madeOf_ != parts) {
    madeOf_ = parts;
    setView(widget());
  }
  setTextSize(shop_.face().textSize);
  setMotion(shop_.moving() ? std::nullopt : std::optional(false));
}

swiftui::View WidgetPanel::widget() const {
  const std::string locale = shop_.locale().toStdString();
  const auto regular = nonEmpty(shop_.regularFont());
  const auto semiBold = nonEmpty(shop_.semiBoldFont());
  switch (kind_) {
    case Kind::scoreRow:
      return ScoreWidgetBuilder::buildSwiftUIScoreWidgetView(
          shop_.clientId().toStdString(), locale, shop_.shopper().token, {regular, semiBold});
    case Kind::info:
      return InfoWidgetBuilder::buildSwiftUIInfoWidgetView(
          locale, {regular, semiBold, std::nullopt, false});
    case Kind::uiInfo:
      return swiftui::hosting(InfoWidgetBuilder::buildUIKitInfoWidgetView(
          locale, {regular, semiBold, std::nullopt, false}));
  }
  return {};
}

}  // namespace quorix::examples
