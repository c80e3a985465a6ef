#include "tests/web/Pages.h"

namespace quorix::testing {

examples::StandInPages& pages() {
  static auto* server = new examples::StandInPages;  // until the engine has ended
  return *server;
}

examples::StandInPages::Answer page(const QByteArray& color, const QByteArray& content,
                                    const QByteArray& script) {
  return {.body = "<!doctype html><html style='height:100%;background:" + color +
                  "'><link rel=icon href='data:,'><body style='margin:0'>" + content +
                  "<script>const tell = what => fetch('/report?' + encodeURIComponent(what));" +
                  script +
                  "</script><script>requestAnimationFrame(() => requestAnimationFrame("
                  "() => fetch('/here')))</script><br style='clear:both'><small style='color:" +
                  color + "'>text</small>"};
}

QStringList reports() {
  QStringList all;
  for (const auto& request : pages().requests("/report")) {
    all.append(QString::fromUtf8(QByteArray::fromPercentEncoding(request.query)));
  }
  return all;
}

}  // namespace quorix::testing
