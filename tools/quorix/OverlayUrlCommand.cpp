#include "tools/quorix/Commands.h"

#include "QuorixWidgets/localization/ServiceAddresses.h"
#include "tools/quorix/TokenInput.h"

namespace quorix::tool {
namespace {

constexpr Option options[] = {
    {"--locale", "LANGUAGE", "The page's language, such as en or nb (default none)."},
    {"--name", "TEXT", "The shopper's name; sent with a token only (default none)."},
};

Outcome overlayUrl(const Arguments& arguments) {
  OverlayAddress address{.token = arguments.operand(),
                         .userName = arguments.value("--name"),
                         .locale = arguments.value("--locale")};
  if (address.token) {
    auto token = tokenText(*address.token);
    if (auto* failure = std::get_if<Failure>(&token)) return *failure;
    address.token = std::get<std::string>(std::move(token));
  }
  const auto url = address.url();
  if (!url) return Failure::refused("the overlay has no address");
  return url->absoluteString() + '\n';
}

}  // namespace

const Command overlayUrlCommand{
    .name = "overlay-url",
    .purpose =
        "Prints the address of the page behind a widget.\n"
        "Nothing is loaded from it.",
    .options = options,
    .operand = {"[TOKEN]", "",
                "The shopper's token, or - to read it from the standard input; without it the "
                "overlay is the general page. It is not checked."},
    .details =
        "A text that is given but empty counts as given: '' for TOKEN is a shopper's page without "
        "a token, and no --locale at all is the query's bare name.",
    .example = "quorix overlay-url --locale nb --name Ann \"$(quorix mint)\"",
    .run = overlayUrl,
};

}  // namespace quorix::tool
