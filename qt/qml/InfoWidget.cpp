#include "qt/qml/InfoWidget.h"

#include "QuorixWidgets/info/InfoWidgetBuilder.h"

namespace quorix::qml {
namespace {

std::optional<swiftui::Color> fixedColor(const QColor& color) {
  if (!color.isValid()) return std::nullopt;
  const QRgb value = color.rgba();
  const auto channel = [](int part) { return static_cast<std::uint8_t>(part); };
  return swiftui::Color::fixed({channel(qRed(value)), channel(qGreen(value)), channel(qBlue(value)),
                                channel(qAlpha(value))});
}

}  // namespace

void InfoWidget::setBackgroundColor(const QColor& color) {
  if (replace(backgroundColor_, color)) emit backgroundColorChanged();
}

void InfoWidget::setShowBorder(bool show) {
  if (replace(showBorder_, show)) emit showBorderChanged();
}

swiftui::View InfoWidget::widget() const {
  return InfoWidgetBuilder::buildSwiftUIInfoWidgetView(
      language(), {regularFace(), semiBoldFace(), fixedColor(backgroundColor_), showBorder_});
}

}  // namespace quorix::qml
