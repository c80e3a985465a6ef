#include "Tool.h"

#include <QFile>
#include <QFileInfo>
#include <QProcess>
#include <algorithm>

Tool::Run Tool::start(const QString& program, const QStringList& words,
                      const std::string& input) const {
  QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
  for (const char* name : {"DISPLAY", "WAYLAND_DISPLAY", "QT_QPA_PLATFORM", "XDG_RUNTIME_DIR"}) {
    environment.remove(name);
  }
  const QString tools = QFileInfo(QStringLiteral(QUORIX_TOOL)).path();
  environment.insert("PATH", tools + ':' + environment.value("PATH"));
  environment.insert("FACE", FONTS "/TovaSansLatin-SemiBold.dataset/TovaSansLatin-SemiBold.ttf");
  QProcess process;
  process.setProcessEnvironment(environment);
  process.setWorkingDirectory(folder_.path());
  process.start(program, words);
  process.write(QByteArray::fromStdString(input));
  process.closeWriteChannel();
  if (!process.waitForFinished() || process.exitStatus() != QProcess::NormalExit) return {};
  return {process.exitCode(), process.readAllStandardOutput().toStdString(),
          process.readAllStandardError().toStdString()};
}

Tool::Run Tool::run(const QStringList& words, const std::string& input) const {
  return start(QStringLiteral(QUORIX_TOOL), words, input);
}

Tool::Run Tool::shell(const std::string& line) const {
  return start("sh", {"-c", QString::fromStdString(line)}, {});
}

QString Tool::write(const QString& file, const QByteArray& bytes) const {
  QFile target(path(file));
  const bool written = target.open(QIODevice::WriteOnly) && target.write(bytes) == bytes.size();
  return written ? path(file) : QString();
}

bool isOneErrorLine(const std::string& text) {
  return text.starts_with("quorix: ") && text.ends_with('\n') &&
         std::ranges::count(text, '\n') == 1;
}
