#include "qt/web/widgets/QuietView.h"

#include <QChildEvent>
#include <QDialog>
#include <QPointer>

namespace quorix::qt {

QuietView::QuietView(QWidget* parent) : QWebEngineView(parent) {
  setContextMenuPolicy(Qt::NoContextMenu);
  setAcceptDrops(false);  // files are not for pages
}

bool QuietView::event(QEvent* event) {
  if (event->type() == QEvent::ToolTip) return true;
  return QWebEngineView::event(event);
}

/// The engine's dialogs are children of the view. A dialog that is not to be shown on the screen is
/// no native one either; it is rejected on the next turn, when the engine waits for its end.
void QuietView::childEvent(QChildEvent* event) {
  QWebEngineView::childEvent(event);
  if (!event->added() || !event->child()->isWidgetType()) return;
  auto* widget = static_cast<QWidget*>(event->child());  // not yet what it is going to be
  if (widget->windowType() != Qt::Dialog) return;
  widget->setAttribute(Qt::WA_DontShowOnScreen);
  QMetaObject::invokeMethod(
      this,
      [shown = QPointer<QObject>(widget)] {
        if (auto* dialog = qobject_cast<QDialog*>(shown.data())) dialog->reject();
      },
      Qt::QueuedConnection);
}

}  // namespace quorix::qt
