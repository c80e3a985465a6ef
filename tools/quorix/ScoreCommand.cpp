#include "tools/quorix/ScoreCommand.h"

#include <cmath>
#include <cstdio>

#include "QuorixWidgets/score/ScoreWidgetBuilder.h"
#include "platform/render/ScenePrinter.h"
#include "platform/swiftui/TreePrinter.h"
#include "qt/StillScene.h"
#include "tools/quorix/Faces.h"
#include "tools/quorix/PictureApplication.h"
#include "tools/quorix/PictureFile.h"
#include "tools/quorix/ScoreRequest.h"
#include "tools/quorix/TokenInput.h"
#include "tools/quorix/Translations.h"

namespace quorix::tool {
namespace {

/// Why the builder would give an empty view for `request`, or a view that can't be shown.
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
  // Its rate would not fit 64 bits, which stops the process.
  if (std::abs(std::get<TokenData>(reading).score) > 1e16) {
    return Failure::refused("the token's score is no score: its rate has no end");
  }
  return std::nullopt;
}

/// Replaces a face given as a file by its name.
std::optional<Failure> resolve(std::optional<std::string>& face) {
  if (!face) return std::nullopt;
  auto found = usableFace(*face);
  if (auto* failure = std::get_if<Failure>(&found)) return *failure;
  face = std::get<std::string>(std::move(found));
  return std::nullopt;
}

/// Lets `view` take over the texts of the request's file.
std::optional<Failure> translate(const swiftui::View& view, const ScoreRequest& request) {
  std::optional<std::string> document;
  if (request.translations) {
    auto read = readTranslations(*request.translations);
    if (auto* failure = std::get_if<Failure>(&read)) return *failure;
    document = std::get<std::string>(std::move(read));
    if (const auto remark = oversights(*document)) {
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

std::string json(const ScoreRequest& request, const qt::StillScene& still) {
  std::string members;
  if (request.frames) members = "\"frames\": " + render::framesToJSON(still.whole());
  if (request.accessibility) {
    if (!members.empty()) members += ",\n";
    members += "\"accessibility\": " + render::accessibilityToJSON(still.topmost());
  }
  return "{" + members + "}\n";
}

std::string text(const ScoreRequest& request, const swiftui::View& view,
                 const qt::StillScene& still) {
  std::string result;
  const auto add = [&](bool wanted, auto print) {
    if (!wanted) return;
    if (!result.empty()) result += '\n';
    result += print();
  };
  add(request.tree, [&] { return swiftui::printTree(view); });
  add(request.frames, [&] { return render::printFrames(still.whole()); });
  add(request.accessibility, [&] { return render::printAccessibility(still.topmost()); });
  return result;
}

Outcome score(const Arguments& arguments) {
  auto read = ScoreRequest::read(arguments);
  if (const auto* failure = std::get_if<Failure>(&read)) return *failure;
  auto& request = std::get<ScoreRequest>(read);
  if (const auto failure = emptiness(request)) return *failure;

  const PictureApplication application;
  if (const auto failure = resolve(request.regularFont)) return *failure;
  if (const auto failure = resolve(request.semiBoldFont)) return *failure;
  const swiftui::View view = ScoreWidgetBuilder::buildSwiftUIScoreWidgetView(
      request.clientId, request.locale, request.token, {request.regularFont, request.semiBoldFont});
  if (const auto failure = translate(view, request)) return *failure;

  const qt::StillScene still = qt::stillScene(view, request.picture);
  if (request.out) {
    const auto failure = writePicture(still.whole(), request.picture, *request.out);
    if (failure) return *failure;
  }
  return request.json ? json(request, still) : text(request, view, still);
}

}  // namespace

const Command scoreCommand{
    .name = "score",
    .synopsis = "--token TOKEN [options]",
    .purpose =
        "Shows the score widget of a token: as a picture, a view tree, frames or words.\n"
        "Nothing is fetched: texts are the built-in ones or those of a file.",
    .options = ScoreRequest::options,
    .operand = {},
    .details =
        "Text sizes: extraSmall, small, medium, large, extraLarge, extraExtraLarge,\n"
        "extraExtraExtraLarge, accessibilityMedium, accessibilityLarge,\n"
        "accessibilityExtraLarge, accessibilityExtraExtraLarge,\n"
        "accessibilityExtraExtraExtraLarge.",
    .example =
        "quorix score --token \"$(quorix mint)\" --locale es --width 343 --scale 3 --out "
        "row.png",
    .run = score,
};

}  // namespace quorix::tool
