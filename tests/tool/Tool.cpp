#include "Tool.h"

#include <QFileInfo>
#include <QProcess>
#include <QRegularExpression>

Tool::Run Tool::shell(const std::string& line) const {
  QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
  for (const char* name : {"DISPLAY", "WAYLAND_DISPLAY", "QT_QPA_PLATFORM", "XDG_RUNTIME_DIR"}) {
    environment.remove(name);
  }
  const QString tools = QFileInfo(QStringLiteral(QUORIX_TOOL)).path();
  environment.insert("PATH", tools + ':' + environment.value("PATH"));
  environment.insert("FACE", FONTS "/TovaSansLatin-SemiBold.dataset/TovaSansLatin-SemiBold.ttf");
  environment.insert("STRINGS", STRINGS);
  QProcess process;
  process.setProcessEnvironment(environment);
  process.setWorkingDirectory(folder_.path());
  process.start("sh", {"-c", QString::fromStdString(line)});
  process.closeWriteChannel();
  if (!process.waitForFinished() || process.exitStatus() != QProcess::NormalExit) return {};
  // On a busy machine, the gallery prints its progress.
  static const QRegularExpression progress("quorix: gallery: \\d+ of \\d+ screens\n");
  const QString errors = QString::fromUtf8(process.readAllStandardError()).remove(progress);
  return {process.exitCode(), process.readAllStandardOutput().toStdString(), errors.toStdString()};
}
