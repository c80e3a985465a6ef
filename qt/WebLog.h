#pragma once

#include <QLoggingCategory>
#include <QUrl>
#include <chrono>

namespace quorix::qt {

/// Why no page is shown, for those who ship the engine. Silent unless the host's developer asks
/// with QT_LOGGING_RULES="quorix.web.warning=true".
inline const QLoggingCategory& webLog() {
  static const QLoggingCategory category("quorix.web", QtCriticalMsg);
  return category;
}

/// One line about a page: its address without the query, which may name the shopper, and `what`.
inline void logPage(const QUrl& address, const QString& what) {
  qCWarning(webLog, "%s %s", qUtf8Printable(address.toDisplayString(QUrl::RemoveQuery)),
            qUtf8Printable(what));
}

inline void logNotLoaded(const QUrl& address, const QString& why) {
  logPage(address, QStringLiteral("was not loaded: ") + why);
}

inline void logNothingCame(const QUrl& address, std::chrono::milliseconds limit) {
  logNotLoaded(address, QStringLiteral("nothing came for %1 ms").arg(limit.count()));
}

inline void logEnded(const QUrl& address) {
  logPage(address, QStringLiteral("ended: its process crashed or was killed"));
}

}  // namespace quorix::qt
