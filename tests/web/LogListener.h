#pragma once

#include <QMutex>
#include <QStringList>

namespace quorix::testing {

/// Records every message and hides it from the log.
class LogListener {
 public:
  LogListener() : before_(qInstallMessageHandler(note)) { lines().clear(); }
  ~LogListener() { qInstallMessageHandler(before_); }
  static QStringList& lines() {
    static QStringList all;
    return all;
  }

 private:
  static void note(QtMsgType, const QMessageLogContext& context, const QString& line) {
    static QMutex mutex;
    // A message of the platform without a display.
    if (line.contains(QLatin1String("propagateSizeHints"))) return;
    if (line.contains(QLatin1String("apturing is not available"))) return;
    const QMutexLocker lock(&mutex);
    lines().append(QString::fromUtf8(context.category) + ": " + line);
  }
  QtMessageHandler before_;
};

}  // namespace quorix::testing
