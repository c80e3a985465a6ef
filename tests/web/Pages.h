#pragma once

#include "examples/common/StandInPages.h"

namespace quorix::testing {

constexpr const char* kModules = "https://modules.quorix.example";
constexpr const char* kWidget = "https://widget.quorix.example";

/// One server for the whole process: the engine reads its address once.
inline examples::StandInPages& pages() {
  static auto* server = new examples::StandInPages;  // until the engine has ended
  return *server;
}

/// A page of one color that says that it is painted by asking for /here. `script` runs before. It
/// has some text: the engine keeps input from a page that shows nothing yet.
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

/// What pages reported by asking for /report?WHAT, the query decoded.
inline QStringList reports() {
  QStringList all;
  for (const auto& request : pages().requests("/report")) {
    all.append(QString::fromUtf8(QByteArray::fromPercentEncoding(request.query)));
  }
  return all;
}

}  // namespace quorix::testing
