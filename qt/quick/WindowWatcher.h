#pragma once

#include <QObject>
#include <QQuickItem>
#include <QQuickWindow>
#include <QTransform>

#include "platform/hosting/ScrolledViews.h"
#include "qt/Conversions.h"
#include "qt/Surface.h"

namespace quorix::qt {

/// Tells the view items of one window what changes around them: one connection for all. Qt Quick
/// does not signal that an ancestor moved. Belongs to the window; main thread.
class WindowWatcher : public QObject {
  Q_OBJECT

 public:
  using Views = hosting::ScrolledViews<QQuickItem>;

  static Views& viewsOf(QQuickWindow& window) {
    auto* watcher = window.findChild<WindowWatcher*>(QString(), Qt::FindDirectChildrenOnly);
    return (watcher ? watcher : new WindowWatcher(window))->views_;
  }

  /// The place of `item` in its window. The visible part is limited by the viewports of `parent`
  /// and its ancestors: pass `item`'s parent, or `item` itself to ask for the place of its
  /// children.
  static hosting::ViewportPlace placeOf(const QQuickItem& item, const QQuickItem& parent) {
    const QTransform toWindow = item.itemTransform(nullptr, nullptr);
    if (!toWindow.isInvertible()) return {};  // scaled to nothing
    hosting::ViewportPlace place{toRect(toWindow.inverted().mapRect(viewportIn(parent))), {}};
    if (toWindow.type() <= QTransform::TxTranslate) place.origin = {toWindow.dx(), toWindow.dy()};
    return place;
  }

 private:
  explicit WindowWatcher(QQuickWindow& window) : QObject(&window) {
    connect(&window, &QWindow::visibilityChanged, this,
            [&window] { Surface::tellWindowState(&window); });
    connect(&window, &QQuickWindow::afterAnimating, this, [this, &window] {
      views_.frame(window.effectiveDevicePixelRatio(),
                   [](const QQuickItem& parent) { return placeOf(parent, parent); });
    });
  }

  /// The part of the window in which children of `parent` are visible, and a margin around it: a
  /// flick brings the margin into view before the next frame is painted. In the window's
  /// coordinates.
  static QRectF viewportIn(const QQuickItem& parent) {
    constexpr double margin = 160;
    const QRectF seen = seenIn(parent);
    return seen.isEmpty() ? seen : seen.adjusted(-margin, -margin, margin, margin);
  }

  static QRectF seenIn(const QQuickItem& item) {
    const QQuickItem* parent = item.parentItem();
    if (parent && !item.flags().testFlag(QQuickItem::ItemIsViewport)) return seenIn(*parent);
    const QRectF own = item.mapRectToScene(item.boundingRect());
    return parent ? own.intersected(seenIn(*parent)) : own;  // the window's root bounds everything
  }

  Views views_;
};

}  // namespace quorix::qt
