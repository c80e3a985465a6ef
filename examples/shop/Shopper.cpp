#include "examples/shop/Shopper.h"

#include <QLocale>

#include "examples/common/TokenMint.h"

namespace quorix::examples {
namespace {

/// A token that was cut off in transmission and cannot be decoded.
std::string brokenToken() {
  const std::string whole = mintToken({0.82, "EUR", 600, 300});
  return whole.substr(0, whole.find('.') + 12);
}

}  // namespace

QString Shopper::priceOf(int count) const {
  return money.arg(QLocale(QLocale::English).toString(price * count));
}

const std::vector<Shopper>& Shopper::all() {
  static const std::vector<Shopper> shoppers = {
      {QStringLiteral("Ana: discount in euros"), mintToken({0.82, "EUR", 600, 300}),
       QStringLiteral("€ %1"), 89},
      {QStringLiteral("Ben: no discount, pounds"), mintToken({0.06, "GBP", 500, 250}),
       QStringLiteral("£%1"), 79},
      {QStringLiteral("Chie: yen"), mintToken({0.91, "JPY", 55000, 33000}), QStringLiteral("¥%1"),
       14800},
      {QStringLiteral("Dana: Swedish kronor"), mintToken({0.74, "SEK", 6900, 3900}),
       QStringLiteral("%1 kr"), 949},
      {QStringLiteral("Eli: broken token"), brokenToken(), QStringLiteral("€ %1"), 89},
  };
  return shoppers;
}

}  // namespace quorix::examples
