#include "examples/shop/OverlayPages.h"

#include <QFile>
#include <QJsonDocument>
#include <QJsonObject>
#include <QUrlQuery>

#include "examples/shop/Shop.h"

namespace quorix::examples {
namespace {

QByteArray file(const QString& name) {
  QFile file(QStringLiteral(":/shop/pages/") + name);
  return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

}  // namespace

OverlayPages::OverlayPages(const Shop& shop) : shop_(shop) {
  const auto answer = [this](const StandInPages::Request& request) {
    return StandInPages::Answer{.body = page(request.query)};
  };
  pages_.serve("/html/overlays/info", answer);
  pages_.serve("/users/details/", answer);
}

QByteArray OverlayPages::page(const QByteArray& query) const {
  const QUrlQuery items(QString::fromUtf8(query));
  QString language = items.queryItemValue(QStringLiteral("lang"));
  QByteArray table = language.contains(u'/') ? QByteArray() : file(language + ".json");
  if (table.isEmpty()) {
    language = QStringLiteral("en");
    table = file("en.json");
  }
  const QJsonObject words = QJsonDocument::fromJson(table).object();
  const QString name = items.queryItemValue(QStringLiteral("name"), QUrl::FullyDecoded);
  const QString hello = words["hello"].toString().arg(name.toHtmlEscaped());

  QString text = QString::fromUtf8(file("overlay.html"));
  text.replace(QLatin1String("{{lang}}"), language);
  text.replace(QLatin1String("{{scheme}}"), QLatin1String(shop_.dark() ? "dark" : "light"));
  text.replace(QLatin1String("{{hello}}"),
               name.isEmpty() ? QString() : "<p class=\"hello\">" + hello + "</p>");
  for (auto word = words.begin(); word != words.end(); ++word) {
    text.replace("{{" + word.key() + "}}", word->toString());
  }
  return text.toUtf8();
}

}  // namespace quorix::examples
