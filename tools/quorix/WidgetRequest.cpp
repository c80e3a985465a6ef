#include "tools/quorix/WidgetRequest.h"

namespace quorix::tool {
namespace {

constexpr OptionReader::Range lengths{1, 10000};  // points
constexpr OptionReader::Range scales{0.5, 10};

void readOutputs(OptionReader& read, WidgetRequest& request) {
  request.out = read.optionalText("--out");
  if (request.out && !request.out->ends_with(".png")) {
    read.fail("--out wants a file that ends in .png, not \"" + *request.out + '"');
  }
  request.tree = read.has("--tree");
  request.frames = read.has("--frames");
  request.json = read.has("--json");
  request.accessibility = read.has("--accessibility");
  if (request.json && request.tree) read.fail("--tree has no JSON form");
  if (request.frames || request.accessibility) return;
  request.frames = request.json;
  request.accessibility = request.json || (!request.out && !request.tree);
}

}  // namespace

WidgetRequest WidgetRequest::from(OptionReader& read) {
  WidgetRequest request{WidgetLook::from(read)};
  const double scale = read.number("--scale", 1, scales);
  request.picture.environment = {request.appearance, request.readingDirection(), request.textSize,
                                 scale, request.locale};
  request.picture.width = read.number("--width", request.picture.width, lengths);
  request.picture.height = read.optionalNumber("--height", lengths);
  request.picture.sheet = read.has("--sheet");
  readOutputs(read, request);
  return request;
}

}  // namespace quorix::tool
