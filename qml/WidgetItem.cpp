#include "qml/WidgetItem.h"

#include <QLocale>
#include <utility>

namespace quorix::qml {
namespace {

using swiftui::ContentSizeCategory;

static_assert(static_cast<int>(WidgetItem::Large) == static_cast<int>(ContentSizeCategory::large));
static_assert(static_cast<int>(WidgetItem::AccessibilityExtraExtraExtraLarge) ==
              static_cast<int>(ContentSizeCategory::accessibilityExtraExtraExtraLarge));

/// The code of Qt's default language. The C locale has none.
QString applicationLanguage() {
  const QLocale locale;
  return locale.language() == QLocale::C ? QStringLiteral("en")
                                         : locale.name().section(QLatin1Char('_'), 0, 0);
}

}  // namespace

std::string WidgetItem::language() const {
  return (locale_.isEmpty() ? applicationLanguage() : locale_).toStdString();
}

void WidgetItem::componentComplete() {
  ViewItem::componentComplete();
  // Make it now: a list needs the height of a new delegate before any frame.
  make();
}

void WidgetItem::updatePolish() {
  if (stale_) make();
  ViewItem::updatePolish();
}

/// Makes the widget after all properties and bindings of this turn are set, and before the next
/// frame. Otherwise that frame could show the old widget with new settings.
void WidgetItem::makeAnew() {
  if (!isComponentComplete() || std::exchange(stale_, true)) return;
  polish();
  // A hidden window has no frames, but `visible: implicitHeight > 0` needs the new height.
  QMetaObject::invokeMethod(
      this,
      [this] {
        if (stale_) make();
      },
      Qt::QueuedConnection);
}

void WidgetItem::make() {
  stale_ = false;
  setView(widget());
}

// Settings.

WidgetItem::Appearance WidgetItem::appearance() const {
  const auto own = settings().appearance;
  if (!own) return System;
  return *own == graphics::Appearance::dark ? Dark : Light;
}

void WidgetItem::setAppearance(Appearance appearance) {
  if (appearance == this->appearance()) return;
  const auto own = appearance == Dark ? graphics::Appearance::dark : graphics::Appearance::light;
  ViewItem::setAppearance(appearance == System ? std::nullopt : std::optional(own));
  emit appearanceChanged();
}

Qt::LayoutDirection WidgetItem::layoutDirection() const {
  const auto own = settings().direction;
  if (!own) return Qt::LayoutDirectionAuto;
  return *own == layout::LayoutDirection::rightToLeft ? Qt::RightToLeft : Qt::LeftToRight;
}

void WidgetItem::setLayoutDirection(Qt::LayoutDirection direction) {
  if (direction == layoutDirection()) return;
  const auto own = direction == Qt::RightToLeft ? layout::LayoutDirection::rightToLeft
                                                : layout::LayoutDirection::leftToRight;
  ViewItem::setLayoutDirection(direction == Qt::LayoutDirectionAuto ? std::nullopt
                                                                    : std::optional(own));
  emit layoutDirectionChanged();
}

WidgetItem::TextSize WidgetItem::textSize() const {
  const auto own = settings().textSize;
  return own ? static_cast<TextSize>(*own) : SystemTextSize;
}

void WidgetItem::setTextSize(TextSize size) {
  const bool known = size >= SystemTextSize && size <= AccessibilityExtraExtraExtraLarge;
  if (size == textSize() || !known) return;
  ViewItem::setTextSize(size == SystemTextSize
                            ? std::nullopt
                            : std::optional(static_cast<ContentSizeCategory>(size)));
  emit textSizeChanged();
}

bool WidgetItem::animated() const { return settings().motion.value_or(true); }

void WidgetItem::setAnimated(bool animated) {
  if (animated == this->animated()) return;
  setMotion(animated ? std::nullopt : std::optional(false));
  emit animatedChanged();
}

}  // namespace quorix::qml
