#include "tools/quorix/InputFile.h"

#include <QFile>

namespace quorix::tool {

std::variant<std::string, Failure> readInputFile(const std::string& path) {
  QFile file(QString::fromStdString(path));
  if (file.open(QIODevice::ReadOnly)) {
    const QByteArray bytes = file.readAll();
    if (file.error() == QFileDevice::NoError) return bytes.toStdString();
  }
  return Failure::refused("can't read " + path + ": " + file.errorString().toStdString());
}

}  // namespace quorix::tool
