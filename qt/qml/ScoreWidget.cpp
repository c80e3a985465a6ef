#include "qt/qml/ScoreWidget.h"

#include "QuorixWidgets/data/TokenData.h"
#include "QuorixWidgets/score/ScoreWidgetBuilder.h"

namespace quorix::qml {

void ScoreWidget::setClientId(const QString& clientId) {
  if (replace(clientId_, clientId)) emit clientIdChanged();
}

void ScoreWidget::setToken(const QString& token) {
  if (token_ == token) return;
  // Signed anew, the same figures are the same widget: an open sheet stays open.
  const auto figures = [](const QString& text) { return parseTokenData(text.toStdString()); };
  if (isComponentComplete() && figures(token_) == figures(token)) {
    token_ = token;
  } else {
    replace(token_, token);
  }
  emit tokenChanged();
}

swiftui::View ScoreWidget::widget() const {
  return ScoreWidgetBuilder::buildSwiftUIScoreWidgetView(
      clientId_.toStdString(), language(), token_.toStdString(), {regularFace(), semiBoldFace()});
}

}  // namespace quorix::qml
