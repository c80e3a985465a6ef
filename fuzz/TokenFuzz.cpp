#include <bit>
#include <cstdint>
#include <string>

#include "QuorixWidgets/data/TokenData.h"
#include "QuorixWidgets/score/ScoreWidgetBuilder.h"
#include "fuzz/Expect.h"
#include "platform/foundation/Base64.h"
#include "platform/hosting/ViewHost.h"
#include "platform/render/Wording.h"
#include "tests/core/EncodeBase64.h"
#include "tests/core/FixedWidthText.h"

using namespace quorix;

namespace {

std::string minted(const TokenData& data) {
  return "h." +
         testing::encodeBase64(
             "{\"data\":{\"score\":" + render::number(data.score) +
             ",\"fee_currency\":" + render::inQuotes(data.currency) +
             ",\"base_fee_amount\":" + std::to_string(data.returnsFee) +
             ",\"discounted_fee_amount\":" + std::to_string(data.discountedReturnsFee) + "}}") +
         ".s";
}

/// Uses the token like a shop.
void show(std::string_view token, bool isRead) {
  testing::FixedWidthText text;
  hosting::ViewHost::Client surface;
  hosting::ViewHost host(text, surface);
  host.setRoot(ScoreWidgetBuilder::buildSwiftUIScoreWidgetView("shop", "en", token,
                                                               {std::nullopt, std::nullopt}));
  host.setOnScreen(true);
  const layout::Size size = host.sizeThatFits({320, std::nullopt});
  const render::Scene& scene = host.scene(size);
  expect(isRead || (size == layout::Size() && scene.items.empty()),
         "a token that is refused shows nothing");
  expect(!isRead || scene.items.empty() == (size == layout::Size()), "a row takes room");
}

void check(std::string_view token) {
  const auto data = parseTokenData(token);
  show(token, data.has_value());
  if (!data) return;
  const auto again = parseTokenData(minted(*data));
  expect(again == data, "figures survive minting a token from them");
  expect(std::bit_cast<std::uint64_t>(again->score) == std::bit_cast<std::uint64_t>(data->score),
         "so does the score's sign");
}

}  // namespace

/// Reads the input both as a token and as a token's payload.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size) {
  const std::string_view input(reinterpret_cast<const char*>(bytes), size);
  check(input);
  check("h." + testing::encodeBase64(input));
  if (const auto decoded = foundation::decodeBase64(std::string(input))) {
    expect(testing::encodeBase64(*decoded).size() == size, "base64 keeps its length");
  }
  return 0;
}
