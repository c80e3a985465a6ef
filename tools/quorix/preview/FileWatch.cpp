#include "tools/quorix/preview/FileWatch.h"

#include <QDirIterator>
#include <QFileInfo>
#include <utility>

namespace quorix::tool {

FileWatch::FileWatch(QStringList roots, QObject* parent)
    : QObject(parent), roots_(std::move(roots)) {
  pause_.setSingleShot(true);
  pause_.setInterval(80);  // milliseconds; combines the writes of an editor
  const auto wait = [this] { pause_.start(); };
  connect(&watcher_, &QFileSystemWatcher::fileChanged, this, wait);
  connect(&watcher_, &QFileSystemWatcher::directoryChanged, this, wait);
  connect(&pause_, &QTimer::timeout, this, &FileWatch::compare);
  known_ = look();
}

/// Reads the state of all files and starts to watch them.
FileWatch::Stamps FileWatch::look() {
  Stamps stamps;
  QStringList paths;
  const auto add = [&](const QFileInfo& info) {
    if (!info.exists()) return;
    paths.append(info.filePath());
    if (info.isFile()) stamps[info.filePath()] = {info.lastModified(), info.size()};
  };
  for (const QString& root : std::as_const(roots_)) {
    if (root.isEmpty()) continue;
    add(QFileInfo(root));
    add(QFileInfo(QFileInfo(root).path()));  // a replaced file appears here
    if (!QFileInfo(root).isDir()) continue;
    QDirIterator inside(root, QDir::Files | QDir::Dirs | QDir::NoDotAndDotDot,
                        QDirIterator::Subdirectories);
    while (inside.hasNext()) add(QFileInfo(inside.next()));
  }
  if (!paths.isEmpty()) watcher_.addPaths(paths);
  return stamps;
}

void FileWatch::compare() {
  const Stamps before = std::exchange(known_, look());
  QStringList files = known_.keys() + before.keys();
  files.removeDuplicates();
  files.removeIf([&](const QString& file) { return known_.value(file) == before.value(file); });
  if (!files.isEmpty()) emit changed(files);
}

}  // namespace quorix::tool
