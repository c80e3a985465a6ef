#include "tools/quorix/InfoRequest.h"

#include "tools/quorix/WidgetOptions.h"

namespace quorix::tool {
namespace {

constexpr std::string_view forms[] = {"declarative", "imperative"};

constexpr auto table = withWidgetOptions({
    {"--form", "NAME", "{} (default declarative).", forms},
    {"--background-color", "#RRGGBB",
     "Behind the texts (default the library's own). The imperative "
     "form does not take one."},
    {"--border", "", "Draws a border. The imperative form has none."},
});

}  // namespace

const std::span<const Option> InfoRequest::options = table;

std::variant<InfoRequest, Failure> InfoRequest::read(const Arguments& arguments) {
  OptionReader read(arguments);
  InfoRequest request{WidgetRequest::from(read)};
  request.imperative = read.choice("--form") == 1;
  request.backgroundColor = read.color("--background-color");
  request.border = read.has("--border");
  if (request.imperative && (request.backgroundColor || request.border)) {
    read.fail("the imperative form takes neither a background color nor a border");
  }
  if (read.failure()) return *read.failure();
  return request;
}

}  // namespace quorix::tool
