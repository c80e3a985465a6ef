#pragma once

#include <QString>
#include <QVariantMap>

namespace quorix::examples {

/// The shop's own texts in one language, by name; `words/` is compiled in. Every language has the
/// same names.
class ShopWords {
 public:
  explicit ShopWords(const QString& languageCode);

  QString operator[](const char* name) const;
  const QVariantMap& all() const { return words_; }

 private:
  QVariantMap words_;
};

}  // namespace quorix::examples
