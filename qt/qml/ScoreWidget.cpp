#include "qt/qml/ScoreWidget.h"

#include "QuorixWidgets/score/ScoreWidgetBuilder.h"

namespace quorix::qml {

void ScoreWidget::setClientId(const QString& clientId) {
  if (replace(clientId_, clientId)) emit clientIdChanged();
}

void ScoreWidget::setToken(const QString& token) {
  if (replace(token_, token)) emit tokenChanged();
}

swiftui::View ScoreWidget::widget() const {
  return ScoreWidgetBuilder::buildSwiftUIScoreWidgetView(
      clientId_.toStdString(), language(), token_.toStdString(), {regularFace(), semiBoldFace()});
}

}  // namespace quorix::qml
