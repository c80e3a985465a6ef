#include "tools/quorix/Commands.h"

#include <cstdio>
#include <optional>
#include <span>
#include <string>
#include <variant>

#include "QuorixWidgets/score/ScoreWidgetBuilder.h"
#include "platform/swiftui/TreePrinter.h"
#include "tools/quorix/Application.h"
#include "tools/quorix/Arguments.h"
#include "tools/quorix/TokenInput.h"
#include "tools/quorix/Translations.h"
#include "tools/quorix/WidgetOptions.h"
#include "tools/quorix/WidgetOutput.h"
#include "tools/quorix/WidgetRequest.h"

namespace quorix::tool {
namespace {

/// The request of a "quorix score" command line.
struct ScoreRequest : WidgetRequest {
  std::string clientId = {};
  std::string token = {};
  std::optional<std::string> translations = {};  ///< a file

  static const std::span<const Option> options;

  /// The request in `arguments`, or the error in them. Reads the token from the standard input if
  /// it is "-".
  static std::variant<ScoreRequest, Failure> read(const Arguments& arguments);
};

constexpr auto table = withWidgetOptions({
    {"--client-id", "ID", "The retailer's client id (default demo)."},
    {"--translations", "FILE.json",
     "Replaces the built-in texts, as a fetched table would; \"quorix texts\" prints one."},
});

const std::span<const Option> ScoreRequest::options = table;

std::variant<ScoreRequest, Failure> ScoreRequest::read(const Arguments& arguments) {
  OptionReader read(arguments);
  ScoreRequest request{WidgetRequest::from(read)};
  request.clientId = read.text("--client-id", "demo");
  request.translations = read.optionalText("--translations");
  if (read.failure()) return *read.failure();
  auto text = tokenText(*arguments.operand());
  if (auto* failure = std::get_if<Failure>(&text)) return std::move(*failure);
  request.token = std::get<std::string>(std::move(text));
  return request;
}

/// The failure if the builder would return an empty view for `request`, or a view that cannot be
/// shown.
std::optional<Failure> emptiness(const ScoreRequest& request) {
  constexpr std::string_view consequence = ", so the widget is empty: nothing to show";
  const auto reading = readToken(request.token);
  if (const auto* refusal = std::get_if<TokenRefusal>(&reading)) {
    Failure failure = refused(*refusal);
    failure.message += consequence;
    return failure;
  }
  if (request.clientId.empty()) {
    return Failure::refused("the client id is empty" + std::string(consequence));
  }
  return notShown(std::get<TokenData>(reading));
}

/// Makes `view` use the texts in the request's file.
std::optional<Failure> translate(const swiftui::View& view, const ScoreRequest& request) {
  std::optional<std::string> document;
  if (request.translations) {
    auto read = readTranslations(*request.translations);
    if (auto* failure = std::get_if<Failure>(&read)) return *failure;
    document = std::get<std::string>(std::move(read));
    if (const auto remark = Oversights::in(*document).line()) {
      std::fprintf(stderr, "quorix: score: note: %s: %s\n", request.translations->c_str(),
                   remark->c_str());
    }
  }
  const bool asked = fetchTranslations(view, document);
  if (document && !asked) {
    return Failure::refused("the locale \"" + request.locale +
                            "\" gives no address to fetch translations from");
  }
  return std::nullopt;
}

Outcome score(const Arguments& arguments) {
  auto read = ScoreRequest::read(arguments);
  if (const auto* failure = std::get_if<Failure>(&read)) return *failure;
  auto& request = std::get<ScoreRequest>(read);
  if (const auto failure = emptiness(request)) return *failure;

  const PictureApplication application;
  if (const auto failure = request.findFaces()) return *failure;
  const swiftui::View view = ScoreWidgetBuilder::buildSwiftUIScoreWidgetView(
      request.clientId, request.locale, request.token, {request.regularFont, request.semiBoldFont});
  if (const auto failure = translate(view, request)) return *failure;

  return showWidget(view, request, [&] { return swiftui::printTree(view); });
}

}  // namespace

const Command scoreCommand{
    .name = "score",
    .purpose =
        "Shows the score widget of a token: as a picture, a view tree, frames or words.\n"
        "Nothing is fetched: texts are the built-in ones or those of a file.",
    .options = ScoreRequest::options,
    .operand = tokenOperand,
    .details = {},
    .example = "quorix score \"$(quorix mint)\" --locale es --width 343 --scale 3 --out row.png",
    .run = score,
};

}  // namespace quorix::tool
