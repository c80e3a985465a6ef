#pragma once

#include <QFile>

#include "examples/common/StandInPages.h"

namespace quorix::testing {

constexpr const char* kModules = "https://modules.quorix.example";
constexpr const char* kWidget = "https://widget.quorix.example";

/// One server for the whole process, because the engine reads its address only once.
inline examples::StandInPages& pages() {
  static auto* server = new examples::StandInPages;  // kept until the engine has ended
  return *server;
}

/// A page of one color. It requests /here when it is painted, and runs `script` before. It contains
/// text, because the engine gives no input to an empty page.
inline examples::StandInPages::Answer page(const QByteArray& color, const QByteArray& content = {},
                                           const QByteArray& script = {}) {
  return {.body = "<!doctype html><html style='height:100%;background:" + color +
                  "'><link rel=icon href='data:,'><body style='margin:0'>" + content +
                  "<script>const tell = what => fetch('/report?' + encodeURIComponent(what));" +
                  script +
                  "</script><script>requestAnimationFrame(() => requestAnimationFrame("
                  "() => fetch('/here')))</script><br style='clear:both'><small style='color:" +
                  color + "'>text</small>"};
}

/// The reports of pages: the decoded query of each request for /report?WHAT.
inline QStringList reports() {
  QStringList all;
  for (const auto& request : pages().requests("/report")) {
    all.append(QString::fromUtf8(QByteArray::fromPercentEncoding(request.query)));
  }
  return all;
}

/// The lines of tests/data/web/<name>.txt, without comments, in fields between "|".
inline QList<QByteArrayList> tableOf(const QString& name) {
  QFile file(TEST_DATA "/web/" + name + ".txt");
  if (!file.open(QIODevice::ReadOnly)) qFatal("No table %s", qPrintable(name));
  QList<QByteArrayList> table;
  for (const QByteArray& line : file.readAll().trimmed().split('\n')) {
    if (line.startsWith('#')) continue;
    table.append(line.split('|'));
    for (QByteArray& field : table.back()) field = field.trimmed();
  }
  if (table.isEmpty()) qFatal("An empty table: %s", qPrintable(name));
  return table;
}

}  // namespace quorix::testing
