#include "examples/shop/ScoreRow.h"

#include <optional>
#include <string>

#include "QuorixWidgets/score/ScoreWidgetBuilder.h"

namespace quorix::examples {
namespace {

std::optional<std::string> nonEmpty(const QString& text) {
  return text.isEmpty() ? std::nullopt : std::optional(text.toStdString());
}

std::optional<graphics::Appearance> shown(ScoreRow::Appearance appearance) {
  if (appearance == ScoreRow::Light) return graphics::Appearance::light;
  if (appearance == ScoreRow::Dark) return graphics::Appearance::dark;
  return std::nullopt;
}

}  // namespace

void ScoreRow::componentComplete() {
  QQuickItem::componentComplete();
  build();
}

void ScoreRow::geometryChange(const QRectF& now, const QRectF& before) {
  QQuickItem::geometryChange(now, before);
  if (surface_) surface_->setSize(now.size());
}

void ScoreRow::replace(QString& value, const QString& replacement) {
  if (value == replacement) return;
  value = replacement;
  // QML sets one property after the other; the first widget is built when it has set them all.
  if (surface_) build();
  emit changed();
}

void ScoreRow::build() {
  if (surface_) {
    surface_->setParentItem(nullptr);
    surface_->deleteLater();  // it may be its own tap that led here
  }
  surface_ =
      new qt::ViewItem(ScoreWidgetBuilder::buildSwiftUIScoreWidgetView(
                           clientId_.toStdString(), locale_.toStdString(), token_.toStdString(),
                           {nonEmpty(regularFont_), nonEmpty(semiBoldFont_)}),
                       this);
  applySettings();
  const auto fit = [this, surface = surface_] {
    if (surface == surface_) setImplicitSize(surface->implicitWidth(), surface->implicitHeight());
  };
  connect(surface_, &QQuickItem::implicitWidthChanged, this, fit);
  connect(surface_, &QQuickItem::implicitHeightChanged, this, fit);
  surface_->setSize(size());
  fit();
}

void ScoreRow::applySettings() {
  surface_->setAppearance(shown(appearance_));
  surface_->setLayoutDirection(rightToLeft_ ? layout::LayoutDirection::rightToLeft
                                            : layout::LayoutDirection::leftToRight);
  const auto category = swiftui::contentSizeCategoryNamed(textSize_.toStdString());
  surface_->setTextSize(category.value_or(swiftui::ContentSizeCategory::large));
  surface_->setMotion(moving_ ? std::nullopt : std::optional(false));
}

}  // namespace quorix::examples
