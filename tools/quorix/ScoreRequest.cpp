#include "tools/quorix/ScoreRequest.h"

#include "tools/quorix/TokenInput.h"
#include "tools/quorix/WidgetOptions.h"

namespace quorix::tool {
namespace {

constexpr auto table = withWidgetOptions({
    {"--client-id", "ID", "The retailer's client id (default demo)."},
    {"--translations", "FILE.json",
     "Replaces the built-in texts, as a fetched table would; \"quorix texts\" prints one."},
});

}  // namespace

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

}  // namespace quorix::tool
