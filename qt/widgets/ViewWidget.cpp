#include "qt/widgets/ViewWidget.h"

#include <QCursor>
#include <QFocusEvent>
#include <QHoverEvent>
#include <QPainter>

#include "qt/Conversions.h"
#include "qt/Engine.h"
#include "qt/Input.h"
#include "qt/widgets/WidgetSurface.h"

namespace quorix::qt {

ViewWidget::ViewWidget(QWidget* parent) : ViewWidget(swiftui::View(), parent) {}

ViewWidget::ViewWidget(swiftui::View view, QWidget* parent)
    : QWidget(parent), surface_(std::make_unique<WidgetSurface>(*this)) {
  installEngine();  // runs the main queue, without which no view changes
  setAttribute(Qt::WA_AcceptTouchEvents);
  setAttribute(Qt::WA_Hover);
  QSizePolicy policy(QSizePolicy::Preferred, QSizePolicy::Preferred);
  policy.setHeightForWidth(true);
  setSizePolicy(policy);
  surface_->host().setRoot(std::move(view));
  surface_->settingsChanged();
}

ViewWidget::~ViewWidget() { surface_->end(); }

void ViewWidget::setView(swiftui::View view) { surface_->replaceView(std::move(view)); }

void ViewWidget::settingsChanged() { surface_->settingsChanged(); }

QSize ViewWidget::sizeHint() const { return surface_->idealSize(); }

QSize ViewWidget::minimumSizeHint() const { return surface_->minimumSize(); }

int ViewWidget::heightForWidth(int width) const { return surface_->heightFor(width); }

bool ViewWidget::event(QEvent* event) {
  switch (event->type()) {
    case QEvent::HoverEnter:
    case QEvent::HoverMove: {
      const auto point = toPoint(static_cast<QHoverEvent*>(event)->position());
      showHand(*this, isEnabled() && surface_->takesTapAt(point));
      return true;
    }
    case QEvent::HoverLeave:
      return true;  // QWidget would paint the widget again
    case QEvent::ParentChange:
      surface_->placeChanged();
      break;
    case QEvent::ScreenChangeInternal:
      surface_->settingsChanged();
      break;
    default:
      break;
  }
  // The action may delete this widget: nothing is touched after it.
  return (isEnabled() && passInput(*event, *surface_)) || QWidget::event(event);
}

void ViewWidget::changeEvent(QEvent* event) {
  QWidget::changeEvent(event);
  surface_->settingsChanged();  // compares them
}

void ViewWidget::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  surface_->paint(painter);
}

void ViewWidget::resizeEvent(QResizeEvent*) { surface_->sizeChanged(); }

void ViewWidget::showEvent(QShowEvent*) { surface_->placeChanged(); }

void ViewWidget::hideEvent(QHideEvent*) {
  surface_->pointerLost();
  surface_->onScreenChanged();
}

// These do not call QWidget's, which would paint the widget again.

void ViewWidget::focusInEvent(QFocusEvent* event) {
  surface_->focusCame(causeOf(event->reason()));
  // Later: Qt has yet to tell that the widget has the focus, and then comes the element in it.
  QMetaObject::invokeMethod(
      this,
      [this] {
        if (hasFocus()) surface_->tellFocus(false);
      },
      Qt::QueuedConnection);
}

void ViewWidget::focusOutEvent(QFocusEvent* event) {
  surface_->focusLeft(causeOf(event->reason()));
}

bool ViewWidget::focusNextPrevChild(bool next) {
  // When a widget is hidden or disabled, Qt moves its focus to another one.
  const bool inside = hasFocus() && isVisible() && isEnabled();
  if (inside && surface_->walk(next)) return true;
  // If nothing else takes the focus, it begins again at the other end.
  return QWidget::focusNextPrevChild(next) || (inside && surface_->walk(next));
}

}  // namespace quorix::qt
