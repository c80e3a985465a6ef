#include "qml/Types.h"

#include <QQmlInfo>
#include <QWindow>
#include <utility>

#include "QuorixWidgets/data/TokenData.h"
#include "QuorixWidgets/info/InfoWidgetBuilder.h"
#include "QuorixWidgets/score/ScoreWidgetBuilder.h"
#include "platform/foundation/URLSession.h"
#include "qt/Engine.h"
#include "qt/SafeArea.h"

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

swiftui::View InfoWidget::widget() const {
  return InfoWidgetBuilder::buildSwiftUIInfoWidgetView(
      language(), {regularFace(), semiBoldFace(), fixedColor(backgroundColor_), showBorder_});
}

void ScoreWidget::setToken(const QString& token) {
  // A token that is signed again with the same figures does not change the widget, so that an open
  // sheet stays open.
  const auto figures = [](const QString& text) { return parseTokenData(text.toStdString()); };
  if (token_ == token || !isComponentComplete() || figures(token_) != figures(token)) {
    return replace(token_, token, &ScoreWidget::tokenChanged);
  }
  token_ = token;
  emit tokenChanged();
}

swiftui::View ScoreWidget::widget() const {
  return ScoreWidgetBuilder::buildSwiftUIScoreWidgetView(
      clientId_.toStdString(), language(), token_.toStdString(), {regularFace(), semiBoldFace()});
}

void TextService::setNetworkEnabled(bool enabled) {
  foundation::URLSession::shared().setNetworkEnabled(enabled);
  if (std::exchange(networkEnabled_, enabled) != enabled) emit networkEnabledChanged();
}

void TextService::componentComplete() {
  qt::installEngine();  // there may be no widget yet to install it
  connect(this, &TextService::prefetchChanged, this, &TextService::fetch);
  connect(this, &TextService::networkEnabledChanged, this, &TextService::fetch);
  fetch();
}

void TextService::fetch() const {
  if (networkEnabled_ && !prefetch_.isEmpty()) prefetch(prefetch_.toStdString());
}

WindowSafeArea::WindowSafeArea(QObject* window) : QObject(window) {
  auto* attachee = qobject_cast<QWindow*>(window);
  if (!attachee) {
    qmlWarning(window) << "WindowSafeArea has to be attached to a window";
    return;
  }
  const auto say = [this, attachee] {
    qt::setSafeArea(*attachee, QMargins(left_, top_, right_, bottom_));
  };
  connect(this, &WindowSafeArea::changed, this, say);
  say();  // applies also if all edges stay 0
}

}  // namespace quorix::qml
