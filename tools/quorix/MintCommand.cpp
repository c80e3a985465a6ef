#include "tools/quorix/Commands.h"

#include <unicode/ucurr.h>

#include <algorithm>
#include <cctype>

#include "examples/common/TokenMint.h"
#include "tools/quorix/Names.h"
#include "tools/quorix/OptionReader.h"

namespace quorix::tool {
namespace {

constexpr Option options[] = {
    {"--score", "FRACTION",
     "The shopper's score, -1000 to 1000; 0.82 is a return rate of 18% (default 0.82)."},
    {"--currency", "CODE", "Of both fees, an ISO 4217 code (default EUR)."},
    {"--base", "HUNDREDTHS",
     "Return fee in hundredths of the currency's unit (default 600). Widgets show whole units: "
     "499 is shown as 4."},
    {"--discounted", "HUNDREDTHS", "Reduced return fee, likewise (default 300)."},
    {"--secret", "TEXT", "What to sign with (default quorix-demo)."},
    {"--unchecked", "",
     "Takes a currency that is none and fees below 0, for a token that tries a widget out."},
};

bool isCurrency(const std::string& code) {
  UErrorCode status = U_ZERO_ERROR;
  UEnumeration* const all = ucurr_openISOCurrencies(UCURR_ALL, &status);
  bool found = false;
  while (const char* known = uenum_next(all, nullptr, &status)) found = found || code == known;
  uenum_close(all);
  return found;
}

void check(OptionReader& read, const TokenData& figures) {
  if (!isCurrency(figures.currency)) {
    std::string capitals = figures.currency;
    std::ranges::transform(capitals, capitals.begin(),
                           [](unsigned char c) { return static_cast<char>(std::toupper(c)); });
    const std::string_view likely[] = {capitals};
    read.fail("--currency wants an ISO 4217 code such as EUR, not \"" + figures.currency + '"' +
              (isCurrency(capitals) ? didYouMean(figures.currency, likely) : ""));
  }
  if (figures.returnsFee < 0) read.fail("--base is below 0; --unchecked takes it");
  if (figures.discountedReturnsFee < 0) read.fail("--discounted is below 0; --unchecked takes it");
}

Outcome mint(const Arguments& arguments) {
  OptionReader read(arguments);
  const TokenData figures{read.number("--score", 0.82, {-1000, 1000}),
                          read.text("--currency", "EUR"), read.integer("--base", 600),
                          read.integer("--discounted", 300)};
  const std::string secret = read.text("--secret", examples::demoSecret);
  if (!read.has("--unchecked")) check(read, figures);
  if (read.failure()) return *read.failure();
  return examples::mintToken(figures, secret) + '\n';
}

}  // namespace

const Command mintCommand{
    .name = "mint",
    .purpose =
        "Prints a shopper token for demos and tests, signed with HS256.\n"
        "It stands in for the widget service; the widgets themselves check no signature.",
    .options = options,
    .operand = {},
    .details = "A score of 0.1 or more earns the reduced fee.",
    .example = "quorix mint --score 0.82 --currency EUR --base 600 --discounted 300",
    .run = mint,
};

}  // namespace quorix::tool
