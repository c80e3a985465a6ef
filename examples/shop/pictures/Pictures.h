#pragma once

#include <QImage>
#include <QString>

namespace quorix::examples {

/// The demo's scenes as PNG files: widgets and sheets on their own, and in the shop, in both
/// toolkits. Main thread; needs the application object, the engine and the services.
class Pictures {
 public:
  explicit Pictures(QString folder) : folder_(std::move(folder)) {}

  /// Writes them all, makes the folder where it is missing, and prints each file's name. False
  /// after a line on the standard error when one can't be written.
  bool write() const;

 private:
  bool save(const QImage& image, const char* name) const;

  QString folder_;
};

}  // namespace quorix::examples
