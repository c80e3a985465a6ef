#include "tools/quorix/MintCommand.h"

#include "examples/common/TokenMint.h"
#include "tools/quorix/OptionReader.h"

namespace quorix::tool {
namespace {

constexpr Option options[] = {
    {"--score", "FRACTION",
     "The shopper's score, -1000 to 1000; 0.82 is a return rate of\n18% (default 0.82)."},
    {"--currency", "CODE", "Of both fees, an ISO 4217 code (default EUR)."},
    {"--base", "HUNDREDTHS",
     "Return fee in hundredths of the currency's unit (default 600).\nWidgets show whole units: "
     "499 is shown as 4."},
    {"--discounted", "HUNDREDTHS", "Reduced return fee, likewise (default 300)."},
    {"--secret", "TEXT", "What to sign with (default quorix-demo)."},
};

Outcome mint(const Arguments& arguments) {
  OptionReader read(arguments);
  const TokenData figures{read.number("--score", 0.82, {-1000, 1000}),
                          read.text("--currency", "EUR"), read.integer("--base", 600),
                          read.integer("--discounted", 300)};
  const std::string secret = read.text("--secret", examples::demoSecret);
  if (read.failure()) return *read.failure();
  return examples::mintToken(figures, secret) + '\n';
}

}  // namespace

const Command mintCommand{
    .name = "mint",
    .synopsis = "[options]",
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
