#include "examples/shop/ShopWords.h"

#include <QFile>
#include <QJsonDocument>
#include <QJsonObject>
#include <string>

#include "platform/foundation/Error.h"

namespace quorix::examples {

ShopWords::ShopWords(const QString& languageCode) {
  QFile file(QStringLiteral(":/shop/words/%1.json").arg(languageCode));
  if (file.open(QIODevice::ReadOnly)) {
    words_ = QJsonDocument::fromJson(file.readAll()).object().toVariantMap();
  }
  if (words_.isEmpty()) foundation::fatalError("the shop's words can't be read");
}

QString ShopWords::operator[](const char* name) const {
  const auto word = words_.find(QLatin1String(name));
  if (word == words_.end()) {
    foundation::fatalError("the shop has no word \"" + std::string(name) + "\"");
  }
  return word->toString();
}

}  // namespace quorix::examples
