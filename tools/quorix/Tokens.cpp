#include "tools/quorix/Tokens.h"

#include <unicode/ucurr.h>

#include <QJsonDocument>
#include <QJsonObject>
#include <algorithm>
#include <cctype>
#include <iostream>
#include <limits>
#include <memory>

#include "QuorixWidgets/score/ScoreWidgetViewModel.h"
#include "examples/common/TokenMint.h"
#include "tools/quorix/Commands.h"

namespace quorix::tool {

Option tokenOperand(std::string& token) {
  return {"TOKEN", "", "The shopper's token, or - to read it from the standard input.", &token};
}

std::optional<Failure> readTokenInput(std::string& token) {
  if (token != "-") return std::nullopt;
  token.assign(longestToken + 1, '\0');
  (std::cin >> std::ws).read(token.data(), static_cast<std::streamsize>(token.size()));
  token.resize(static_cast<std::size_t>(std::cin.gcount()));
  if (token.size() > longestToken) return refused(TokenRefusal::tooLong);
  token.resize(token.find_last_not_of(" \t\r\n") + 1);
  return std::nullopt;
}

Failure refused(TokenRefusal refusal) {
  return Failure::refused("the token is refused: " + std::string(describe(refusal)));
}

std::optional<Failure> notShown(const TokenData& figures) {
  if (hasReturnRate(figures.score)) return std::nullopt;
  return Failure::refused(
      "the score is beyond all reckoning, so a widget for this token is empty: nothing to show");
}

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

Outcome decode(std::string token) {
  if (auto failure = readTokenInput(token)) return *std::move(failure);
  const auto reading = readToken(token);
  if (const auto* refusal = std::get_if<TokenRefusal>(&reading)) return refused(*refusal);
  const auto& figures = std::get<TokenData>(reading);
  auto failure = notShown(figures);
  if (!failure) return json(figures);
  failure->output = json(figures);
  return *std::move(failure);
}

struct MintRequest {
  TokenData figures{0.82, "EUR", 600, 300};
  std::string secret{examples::demoSecret};
  bool unchecked = false;
};

bool isCurrency(const std::string& code) {
  constexpr UDate always = std::numeric_limits<UDate>::max();
  UErrorCode status = U_ZERO_ERROR;
  return ucurr_isAvailable(std::u16string(code.begin(), code.end()).c_str(), -always, always,
                           &status);
}

/// The error if no service should sign `figures`.
std::optional<Failure> mistake(const TokenData& figures) {
  if (!isCurrency(figures.currency)) {
    std::string capitals = figures.currency;
    std::ranges::transform(capitals, capitals.begin(),
                           [](unsigned char c) { return static_cast<char>(std::toupper(c)); });
    return Failure::usage("--currency wants an ISO 4217 code such as EUR, not \"" +
                          figures.currency + '"' +
                          (isCurrency(capitals) ? "; did you mean \"" + capitals + "\"?" : ""));
  }
  if (figures.returnsFee < 0) return Failure::usage("--base is below 0; --unchecked takes it");
  if (figures.discountedReturnsFee >= 0) return std::nullopt;
  return Failure::usage("--discounted is below 0; --unchecked takes it");
}

Outcome mint(const MintRequest& request) {
  if (!request.unchecked) {
    if (auto failure = mistake(request.figures)) return *std::move(failure);
  }
  return examples::mintToken(request.figures, request.secret) + '\n';
}

}  // namespace

Command decodeCommand() {
  const auto token = std::make_shared<std::string>();
  return {
      .name = "decode",
      .purpose =
          "Prints the figures in a shopper token as JSON.\n"
          "A token that a widget would refuse is refused here, with the reason.",
      .operand = tokenOperand(*token),
      .details = "Fees are in hundredths of the currency's unit. The signature is not checked.",
      .example = "quorix mint --base 1250 | quorix decode -",
      .run = [token] { return decode(*token); },
  };
}

Command mintCommand() {
  const auto request = std::make_shared<MintRequest>();
  TokenData& figures = request->figures;
  return {
      .name = "mint",
      .purpose =
          "Prints a shopper token for demos and tests, signed with HS256.\n"
          "It stands in for the widget service; the widgets themselves check no signature.",
      .options =
          {
              {"--score", "FRACTION",
               "The shopper's score, {}; 0.82 is a return rate of 18% (default 0.82).",
               &figures.score, between(-1000, 1000)},
              {"--currency", "CODE", "Of both fees, an ISO 4217 code (default EUR).",
               &figures.currency},
              {"--base", "HUNDREDTHS",
               "Return fee in hundredths of the currency's unit (default 600). Widgets show whole "
               "units: 499 is shown as 4.",
               &figures.returnsFee},
              {"--discounted", "HUNDREDTHS", "Reduced return fee, likewise (default 300).",
               &figures.discountedReturnsFee},
              {"--secret", "TEXT", "What to sign with (default quorix-demo).", &request->secret},
              {"--unchecked", "",
               "Takes a currency that is none and fees below 0, for a token that tries a widget "
               "out.",
               &request->unchecked},
          },
      .details = "A score of 0.1 or more earns the reduced fee.",
      .example = "quorix mint --score 0.82 --currency EUR --base 600 --discounted 300",
      .run = [request] { return mint(*request); },
  };
}

}  // namespace quorix::tool
