#pragma once

#include <QDateTime>
#include <QFileSystemWatcher>
#include <QMap>
#include <QObject>
#include <QStringList>
#include <QTimer>
#include <utility>

namespace quorix::tool {

/// Watches files, and folders with their contents. Handles the ways in which editors write: a
/// replaced file stays watched, and changes at the same time are reported together. Main thread.
class FileWatch : public QObject {
  Q_OBJECT

 public:
  /// `roots` are files and folders, also ones that do not exist yet.
  explicit FileWatch(QStringList roots, QObject* parent = nullptr);

  /// The watched files that exist.
  QStringList files() const { return known_.keys(); }

 signals:
  /// `files` are new, deleted or have changed.
  void changed(const QStringList& files);

 private:
  /// When each file was modified, and its size.
  using Stamps = QMap<QString, std::pair<QDateTime, qint64>>;

  Stamps look();
  void compare();

  QStringList roots_;
  QFileSystemWatcher watcher_;
  QTimer pause_;
  Stamps known_;
};

}  // namespace quorix::tool
