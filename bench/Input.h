#pragma once

#include <QQuickWindow>

namespace quorix::bench {

/// A finger's short tap.
void sendTap(QQuickWindow& window, QPointF at);
void sendEscape(QQuickWindow& window);

}  // namespace quorix::bench
