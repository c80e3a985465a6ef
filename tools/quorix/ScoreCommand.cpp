#include <cstdio>
#include <memory>

#include "QuorixWidgets/score/ScoreWidgetBuilder.h"
#include "platform/swiftui/TreePrinter.h"
#include "tools/quorix/Application.h"
#include "tools/quorix/Commands.h"
#include "tools/quorix/Texts.h"
#include "tools/quorix/Tokens.h"
#include "tools/quorix/Widget.h"

namespace quorix::tool {
namespace {

struct ScoreRequest : WidgetRequest {
  std::string clientId = "demo";
  std::string token = {};
  std::optional<std::string> translations = {};  ///< a file
};

/// The failure if the builder would return an empty view for `request`, or a view that cannot be
/// shown.
std::optional<Failure> emptiness(const ScoreRequest& request) {
  const std::string consequence = ", so the widget is empty: nothing to show";
  const auto reading = readToken(request.token);
  if (const auto* refusal = std::get_if<TokenRefusal>(&reading)) {
    return Failure::refused(refused(*refusal).message + consequence);
  }
  if (request.clientId.empty()) return Failure::refused("the client id is empty" + consequence);
  return notShown(std::get<TokenData>(reading));
}

/// Makes `view` use the texts in the file of `request`.
std::optional<Failure> translate(const swiftui::View& view, const ScoreRequest& request) {
  if (!request.translations) return std::nullopt;
  const auto read = Translations::read(*request.translations);
  if (const auto* failure = std::get_if<Failure>(&read)) return *failure;
  const auto& table = std::get<Translations>(read);
  if (const std::string mistakes = table.mistakes(); !mistakes.empty()) {
    std::fprintf(stderr, "quorix: score: note: %s: %s\n", request.translations->c_str(),
                 mistakes.c_str());
  }
  if (fetchTranslations(view, table.document)) return std::nullopt;
  return Failure::refused("the locale \"" + request.locale +
                          "\" gives no address to fetch translations from");
}

Outcome score(ScoreRequest& request) {
  const auto application = startApplication();
  if (auto failure = request.prepare()) return *std::move(failure);
  if (auto failure = readTokenInput(request.token)) return *std::move(failure);
  if (auto failure = emptiness(request)) return *std::move(failure);
  const swiftui::View view = ScoreWidgetBuilder::buildSwiftUIScoreWidgetView(
      request.clientId, request.locale, request.token, {request.regularFont, request.semiBoldFont});
  if (auto failure = translate(view, request)) return *std::move(failure);
  return showWidget(view, request, [&] { return swiftui::printTree(view); });
}

}  // namespace

Command scoreCommand() {
  const auto request = std::make_shared<ScoreRequest>();
  return {
      .name = "score",
      .purpose =
          "Shows the score widget of a token: as a picture, a view tree, frames or words.\n"
          "Nothing is fetched: texts are the built-in ones or those of a file.",
      .options = withWidgetOptions(
          *request,
          {{"--client-id", "ID", "The retailer's client id (default demo).", &request->clientId},
           {"--translations", "FILE.json",
            "Replaces the built-in texts, as a fetched table would; \"quorix texts\" prints one.",
            &request->translations}}),
      .operand = tokenOperand(request->token),
      .example = "quorix score \"$(quorix mint)\" --locale es --width 343 --scale 3 --out row.png",
      .run = [request] { return score(*request); },
  };
}

}  // namespace quorix::tool
