#include "tools/quorix/Commands.h"

#include <QJsonDocument>
#include <QJsonObject>

#include "tools/quorix/TokenInput.h"

namespace quorix::tool {
namespace {

std::string json(const TokenData& figures) {
  const QJsonObject object{
      {"score", figures.score},
      {"currency", QString::fromStdString(figures.currency)},
      {"returnsFee", static_cast<qint64>(figures.returnsFee)},
      {"discountedReturnsFee", static_cast<qint64>(figures.discountedReturnsFee)},
  };
  return QJsonDocument(object).toJson(QJsonDocument::Indented).toStdString();
}

Outcome decode(const Arguments& arguments) {
  const auto token = tokenText(*arguments.operand());
  if (const auto* failure = std::get_if<Failure>(&token)) return *failure;
  const auto reading = readToken(std::get<std::string>(token));
  if (const auto* refusal = std::get_if<TokenRefusal>(&reading)) return refused(*refusal);
  const auto& figures = std::get<TokenData>(reading);
  auto failure = notShown(figures);
  if (!failure) return json(figures);
  failure->output = json(figures);
  return *std::move(failure);
}

}  // namespace

const Command decodeCommand{
    .name = "decode",
    .purpose =
        "Prints the figures in a shopper token as JSON.\n"
        "A token that a widget would refuse is refused here, with the reason.",
    .options = {},
    .operand = tokenOperand,
    .details = "Fees are in hundredths of the currency's unit. The signature is not checked.",
    .example = "quorix mint --base 1250 | quorix decode -",
    .run = decode,
};

}  // namespace quorix::tool
