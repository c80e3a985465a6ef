#pragma once

#include <QDateTime>
#include <QFileSystemWatcher>
#include <QMap>
#include <QObject>
#include <QStringList>
#include <QTimer>

namespace quorix::tool {

/// Watches files, and folders with all that is in them, the way editors write them: a file that is
/// replaced stays watched, and what happens at once is told at once. Main thread.
class FileWatch : public QObject {
  Q_OBJECT

 public:
  /// `roots` are files and folders; those that are not there are watched for as well.
  explicit FileWatch(QStringList roots, QObject* parent = nullptr);

 signals:
  /// `files` are new, gone or have other content.
  void changed(const QStringList& files);

 private:
  struct Stamp {
    QDateTime modified;
    qint64 size = 0;
    bool operator==(const Stamp&) const = default;
  };
  using Stamps = QMap<QString, Stamp>;

  Stamps look();
  void compare();

  QStringList roots_;
  QFileSystemWatcher watcher_;
  QTimer pause_;
  Stamps known_;
};

}  // namespace quorix::tool
