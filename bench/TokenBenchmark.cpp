// Times a token up to its figures: ours, and the same decoding with Qt's own classes.

#include <benchmark/benchmark.h>

#include <QByteArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QString>
#include <cmath>
#include <cstdlib>
#include <optional>
#include <string>

#include "QuorixWidgets/data/TokenData.h"
#include "examples/common/TokenMint.h"

namespace quorix::bench {
namespace {

const TokenData kFigures{0.82, "EUR", 499, 299};

/// A token with the members that the service adds and the widget ignores.
std::string smallToken() { return examples::mintToken(kFigures); }

/// The same figures among the claims that tokens usually carry.
std::string fullToken() {
  const QByteArray payload =
      R"({"iss":"https://widget.quorix.example","sub":"5f1d7c1e-93c4-4a52-9c3b-2f6c0f6b8f0a",)"
      R"("aud":"my-shop","iat":1717413600,"exp":1717417200,"data":{"client_id":"my-shop",)"
      R"("name":"Zoë","score":0.82,"fee_currency":"EUR","base_fee_amount":499,)"
      R"("discounted_fee_amount":299,"orders":41,"returns":7},"features":["score","info"]})";
  const std::string small = smallToken();
  const auto options = QByteArray::Base64UrlEncoding | QByteArray::OmitTrailingEquals;
  return small.substr(0, small.find('.') + 1) + payload.toBase64(options).toStdString() +
         small.substr(small.rfind('.'));
}

struct QtFigures {
  double score;
  QString currency;
  qint64 returnsFee;
  qint64 discountedReturnsFee;
};

std::optional<qint64> wholeNumber(const QJsonValue& value) {
  if (!value.isDouble()) return std::nullopt;
  const double number = value.toDouble();
  const qint64 whole = value.toInteger(-1);
  return static_cast<double>(whole) == number ? std::optional(whole) : std::nullopt;
}

std::optional<QtFigures> parseWithQt(const QByteArray& token) {
  const qsizetype begin = token.indexOf('.') + 1;
  if (begin == 0) return std::nullopt;
  const qsizetype end = token.indexOf('.', begin);
  const auto payload = QByteArray::fromBase64Encoding(
      token.mid(begin, end < 0 ? -1 : end - begin),
      QByteArray::Base64UrlEncoding | QByteArray::AbortOnBase64DecodingErrors);
  if (!payload) return std::nullopt;
  const QJsonDocument document = QJsonDocument::fromJson(*payload);
  if (!document.isObject()) return std::nullopt;
  const QJsonObject data = document.object().value(QLatin1String("data")).toObject();
  const QJsonValue score = data.value(QLatin1String("score"));
  const QJsonValue currency = data.value(QLatin1String("fee_currency"));
  const auto baseFee = wholeNumber(data.value(QLatin1String("base_fee_amount")));
  const auto discountedFee = wholeNumber(data.value(QLatin1String("discounted_fee_amount")));
  if (!score.isDouble() || !currency.isString() || !baseFee || !discountedFee) return std::nullopt;
  return QtFigures{score.toDouble(), currency.toString(), *baseFee, *discountedFee};
}

void requireSameFigures(const std::string& token) {
  const auto ours = parseTokenData(token);
  const auto theirs = parseWithQt(QByteArray::fromStdString(token));
  if (ours && theirs && *ours == kFigures && theirs->score == kFigures.score &&
      theirs->currency == QLatin1String("EUR") && theirs->returnsFee == kFigures.returnsFee &&
      theirs->discountedReturnsFee == kFigures.discountedReturnsFee) {
    return;
  }
  std::abort();  // their results differ
}

void ours(benchmark::State& state, const std::string& token) {
  requireSameFigures(token);
  for (auto _ : state) benchmark::DoNotOptimize(parseTokenData(token));
}

void withQt(benchmark::State& state, const std::string& token) {
  requireSameFigures(token);
  const auto bytes = QByteArray::fromStdString(token);
  for (auto _ : state) benchmark::DoNotOptimize(parseWithQt(bytes));
}

BENCHMARK_CAPTURE(ours, small, smallToken());
BENCHMARK_CAPTURE(withQt, small, smallToken());
BENCHMARK_CAPTURE(ours, full, fullToken());
BENCHMARK_CAPTURE(withQt, full, fullToken());

}  // namespace
}  // namespace quorix::bench
