#include <memory>

#include "QuorixWidgets/localization/ServiceAddresses.h"
#include "tools/quorix/Commands.h"
#include "tools/quorix/Tokens.h"

namespace quorix::tool {
namespace {

Outcome overlayUrl(OverlayAddress address) {
  if (address.token) {
    if (auto failure = readTokenInput(*address.token)) return *std::move(failure);
  }
  const auto url = address.url();
  if (!url) return Failure::refused("the overlay has no address");
  return url->absoluteString() + '\n';
}

}  // namespace

Command overlayUrlCommand() {
  const auto address = std::make_shared<OverlayAddress>();
  return {
      .name = "overlay-url",
      .purpose =
          "Prints the address of the page behind a widget.\n"
          "Nothing is loaded from it.",
      .options =
          {
              {"--locale", "LANGUAGE", "The page's language, such as en or nb (default none).",
               &address->locale},
              {"--name", "TEXT", "The shopper's name; sent with a token only (default none).",
               &address->userName},
          },
      .operand = {"[TOKEN]", "",
                  "The shopper's token, or - to read it from the standard input; without it the "
                  "overlay is the general page. It is not checked.",
                  &address->token},
      .details =
          "A text that is given but empty counts as given: '' for TOKEN is a shopper's page "
          "without a token, and no --locale at all is the query's bare name.",
      .example = "quorix overlay-url --locale nb --name Ann \"$(quorix mint)\"",
      .run = [address] { return overlayUrl(*address); },
  };
}

}  // namespace quorix::tool
