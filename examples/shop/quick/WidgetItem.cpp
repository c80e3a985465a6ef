#include "examples/shop/quick/WidgetItem.h"

namespace quorix::examples {

void WidgetItem::componentComplete() {
  QQuickItem::componentComplete();
  build();
}

void WidgetItem::geometryChange(const QRectF& now, const QRectF& before) {
  QQuickItem::geometryChange(now, before);
  if (surface_) surface_->setSize(now.size());
}

void WidgetItem::replace(QString& value, const QString& replacement) {
  if (value == replacement) return;
  value = replacement;
  // QML sets one property after the other; the first widget is built when it has set them all.
  if (surface_) build();
  emit changed();
}

void WidgetItem::build() {
  if (surface_) {
    surface_->setParentItem(nullptr);
    surface_->deleteLater();  // it may be its own tap that led here
  }
  surface_ = new qt::ViewItem(widget(), this);
  applySettings();
  const auto fit = [this, surface = surface_] {
    if (surface == surface_) setImplicitSize(surface->implicitWidth(), surface->implicitHeight());
  };
  connect(surface_, &QQuickItem::implicitWidthChanged, this, fit);
  connect(surface_, &QQuickItem::implicitHeightChanged, this, fit);
  surface_->setSize(size());
  fit();
}

void WidgetItem::applySettings() {
  surface_->setAppearance(dark_ ? graphics::Appearance::dark : graphics::Appearance::light);
  surface_->setLayoutDirection(rightToLeft_ ? layout::LayoutDirection::rightToLeft
                                            : layout::LayoutDirection::leftToRight);
  const auto category = swiftui::contentSizeCategoryNamed(textSize_.toStdString());
  surface_->setTextSize(category.value_or(swiftui::ContentSizeCategory::large));
  surface_->setMotion(moving_ ? std::nullopt : std::optional(false));
}

}  // namespace quorix::examples
