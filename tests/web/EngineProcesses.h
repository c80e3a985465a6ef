#pragma once

#include <unistd.h>

#include <QDir>
#include <QFile>
#include <map>
#include <vector>

namespace quorix::testing {

/// All processes of the engine, each with its parent.
inline std::map<pid_t, pid_t> allEngineProcesses() {
  std::map<pid_t, pid_t> all;
  for (const QString& id : QDir(QStringLiteral("/proc")).entryList({"[0-9]*"}, QDir::Dirs)) {
    QFile file("/proc/" + id + "/stat");
    if (!file.open(QIODevice::ReadOnly)) continue;
    const QByteArray line = file.readAll();  // "ID (NAME) STATE PARENT ..."
    const QList<QByteArray> fields = line.mid(line.lastIndexOf(')') + 2).split(' ');
    const bool ended = fields.value(0) == "Z";
    if (line.contains("(QtWebEngineProc") && !ended) all[id.toInt()] = fields.value(1).toInt();
  }
  return all;
}

/// The engine's processes for this process, with all their children. With `renderersOnly`, only
/// those that run pages; the engine forks them from another of its processes.
inline std::vector<pid_t> engineProcesses(bool renderersOnly = false) {
  const auto all = allEngineProcesses();
  std::vector<pid_t> found;
  for (const auto& [id, parent] : all) {
    pid_t top = parent;
    while (all.contains(top)) top = all.at(top);
    if (top == getpid() && (!renderersOnly || parent != top)) found.push_back(id);
  }
  return found;
}

inline std::vector<pid_t> engineRenderers() { return engineProcesses(true); }

}  // namespace quorix::testing
