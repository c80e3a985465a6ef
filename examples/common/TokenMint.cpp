#include "examples/common/TokenMint.h"

#include <QByteArray>
#include <QCryptographicHash>
#include <QJsonDocument>
#include <QJsonObject>
#include <QMessageAuthenticationCode>

namespace quorix::examples {
namespace {

QByteArray base64url(const QByteArray& bytes) {
  return bytes.toBase64(QByteArray::Base64UrlEncoding | QByteArray::OmitTrailingEquals);
}

QByteArray payload(const TokenData& figures) {
  const QJsonObject data{
      {"score", figures.score},
      {"fee_currency", QString::fromStdString(figures.currency)},
      {"base_fee_amount", static_cast<qint64>(figures.returnsFee)},
      {"discounted_fee_amount", static_cast<qint64>(figures.discountedReturnsFee)},
  };
  return QJsonDocument(QJsonObject{{"data", data}}).toJson(QJsonDocument::Compact);
}

}  // namespace

std::string mintToken(const TokenData& figures, std::string_view secret) {
  const QByteArray header = R"({"alg":"HS256","typ":"JWT"})";
  const QByteArray message = base64url(header) + '.' + base64url(payload(figures));
  const QByteArray key(secret.data(), static_cast<qsizetype>(secret.size()));
  const QByteArray signature =
      QMessageAuthenticationCode::hash(message, key, QCryptographicHash::Sha256);
  return (message + '.' + base64url(signature)).toStdString();
}

}  // namespace quorix::examples
