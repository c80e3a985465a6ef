#include "tests/web/EngineProcesses.h"

#include <unistd.h>

#include <QDir>
#include <QFile>
#include <map>

namespace quorix::testing {
namespace {

/// All processes of the engine, each with its parent.
std::map<pid_t, pid_t> parents() {
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

std::vector<pid_t> own(bool forkedOnly) {
  const auto all = parents();
  std::vector<pid_t> found;
  for (const auto& [id, parent] : all) {
    pid_t top = parent;
    while (all.contains(top)) top = all.at(top);
    if (top == getpid() && (!forkedOnly || parent != top)) found.push_back(id);
  }
  return found;
}

}  // namespace

std::vector<pid_t> engineProcesses() { return own(false); }

std::vector<pid_t> engineRenderers() { return own(true); }

}  // namespace quorix::testing
