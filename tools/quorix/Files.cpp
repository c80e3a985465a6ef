#include <QFile>
#include <QSaveFile>

#include "tools/quorix/Files.h"

namespace quorix::tool {
namespace {

/// Bytes; much more than any token or table needs.
constexpr qint64 largestInput = 64'000'000;

}  // namespace

std::variant<std::string, Failure> readInputFile(const std::string& path) {
  QFile file(QString::fromStdString(path));
  if (file.open(QIODevice::ReadOnly)) {
    const QByteArray bytes = file.read(largestInput + 1);
    if (bytes.size() > largestInput) {
      return Failure::refused("can't use " + path + ": it is over 64 MB");
    }
    if (file.error() == QFileDevice::NoError) return bytes.toStdString();
  }
  return Failure::refused("can't read " + path + ": " + file.errorString().toStdString());
}

std::optional<Failure> writeFile(const std::string& path, const QByteArray& bytes) {
  if (bytes.isEmpty()) return Failure::refused("can't write " + path + ": there is no picture");
  QSaveFile file(QString::fromStdString(path));
  if (file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size() && file.commit()) {
    return std::nullopt;
  }
  return Failure::refused("can't write " + path + ": " + file.errorString().toStdString());
}

}  // namespace quorix::tool
