#pragma once

#include <QLoggingCategory>

namespace quorix::qt {

/// Why no page is shown, for whoever ships the engine. Silent unless the host's developer asks with
/// QT_LOGGING_RULES="quorix.web.warning=true".
inline const QLoggingCategory& webLog() {
  static const QLoggingCategory category("quorix.web", QtCriticalMsg);
  return category;
}

}  // namespace quorix::qt
