#include "tools/quorix/OutputFile.h"

#include <QBuffer>
#include <QImageWriter>
#include <QSaveFile>

namespace quorix::tool {
namespace {

Failure cannotWrite(const std::string& path, const QString& reason) {
  return Failure::refused("can't write " + path + ": " + reason.toStdString());
}

}  // namespace

std::optional<Failure> writeFile(const std::string& path, const QByteArray& bytes) {
  QSaveFile file(QString::fromStdString(path));
  if (!file.open(QIODevice::WriteOnly)) return cannotWrite(path, file.errorString());
  if (file.write(bytes) != bytes.size() || !file.commit()) {
    return cannotWrite(path, file.errorString());
  }
  return std::nullopt;
}

std::optional<Failure> writePicture(const QImage& image, const std::string& path) {
  QBuffer buffer;
  buffer.open(QIODevice::WriteOnly);
  QImageWriter writer(&buffer, "png");
  if (!writer.write(image)) return cannotWrite(path, writer.errorString());
  return writeFile(path, buffer.data());
}

}  // namespace quorix::tool
