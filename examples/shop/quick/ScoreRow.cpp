#include "examples/shop/quick/ScoreRow.h"

#include "QuorixWidgets/score/ScoreWidgetBuilder.h"

namespace quorix::examples {

swiftui::View ScoreRow::widget() const {
  return ScoreWidgetBuilder::buildSwiftUIScoreWidgetView(
      clientId_.toStdString(), locale(), token_.toStdString(), {regularFace(), semiBoldFace()});
}

}  // namespace quorix::examples
