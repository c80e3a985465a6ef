#include "examples/shop/ScoreRow.h"

#include <optional>
#include <string>

#include "QuorixWidgets/score/ScoreWidgetBuilder.h"

namespace quorix::examples {
namespace {

std::optional<std::string> nonEmpty(const QString& text) {
  return text.isEmpty() ? std::nullopt : std::optional(text.toStdString());
}

}  // namespace

void ScoreRow::setShownAppearance(Appearance appearance) {
  appearance_ = appearance;
  std::optional<graphics::Appearance> shown;
  if (appearance == Light) shown = graphics::Appearance::light;
  if (appearance == Dark) shown = graphics::Appearance::dark;
  setAppearance(shown);
  emit changed();
}

void ScoreRow::setRightToLeft(bool rightToLeft) {
  rightToLeft_ = rightToLeft;
  setLayoutDirection(rightToLeft ? layout::LayoutDirection::rightToLeft
                                 : layout::LayoutDirection::leftToRight);
  emit changed();
}

void ScoreRow::setTextSizeNamed(const QString& name) {
  const auto category = swiftui::contentSizeCategoryNamed(name.toStdString());
  if (!category) return;
  textSize_ = name;
  setTextSize(*category);
  emit changed();
}

void ScoreRow::setMoving(bool moving) {
  moving_ = moving;
  setMotion(moving ? std::nullopt : std::optional(false));
  emit changed();
}

void ScoreRow::componentComplete() {
  ViewItem::componentComplete();
  build();
}

void ScoreRow::replace(QString& value, const QString& replacement) {
  if (value == replacement) return;
  value = replacement;
  // QML sets one property after the other; the first widget is built when it has set them all.
  if (isComponentComplete()) build();
  emit changed();
}

void ScoreRow::build() {
  setView(ScoreWidgetBuilder::buildSwiftUIScoreWidgetView(
      clientId_.toStdString(), locale_.toStdString(), token_.toStdString(),
      {nonEmpty(regularFont_), nonEmpty(semiBoldFont_)}));
}

}  // namespace quorix::examples
