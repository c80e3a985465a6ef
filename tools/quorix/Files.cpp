#include <QBuffer>
#include <QFile>
#include <QImageWriter>
#include <QSaveFile>

#include "tools/quorix/Files.h"

namespace quorix::tool {

std::variant<std::string, Failure> readInputFile(const std::string& path) {
  QFile file(QString::fromStdString(path));
  if (file.open(QIODevice::ReadOnly)) {
    const QByteArray bytes = file.read(static_cast<qint64>(largestInput) + 1);
    if (static_cast<std::size_t>(bytes.size()) > largestInput) {
      return Failure::refused("can't use " + path + ": it is over 64 MB");
    }
    if (file.error() == QFileDevice::NoError) return bytes.toStdString();
  }
  return Failure::refused("can't read " + path + ": " + file.errorString().toStdString());
}

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
