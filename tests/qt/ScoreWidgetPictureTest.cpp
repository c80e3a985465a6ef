#include <gtest/gtest.h>

#include <algorithm>
#include <ostream>
#include <string>

#include "QuorixWidgets/localization/TovaFont.h"
#include "QuorixWidgets/score/ScoreWidgetBuilder.h"
#include "platform/foundation/Base64.h"
#include "platform/foundation/URLSession.h"
#include "qt/Picture.h"
#include "tests/qt/MatchesPicture.h"

namespace quorix {
namespace {

using graphics::Appearance;
using layout::LayoutDirection;
using swiftui::ContentSizeCategory;

struct PictureCase {
  const char* name;
  bool sheet = false;
  bool discount = true;
  const char* locale = "en";
  Appearance appearance = Appearance::light;
  double scale = 1;
  LayoutDirection direction = LayoutDirection::leftToRight;
  ContentSizeCategory textSize = ContentSizeCategory::large;
};

void PrintTo(const PictureCase& row, std::ostream* out) { *out << row.name; }

std::string token(bool discount) {
  const std::string payload = R"({"data":{"score":)" + std::string(discount ? "0.82" : "0.05") +
                              R"(,"fee_currency":"EUR","base_fee_amount":499,)" +
                              R"("discounted_fee_amount":299}})";
  return "h." + foundation::encodeBase64(payload) + ".s";
}

/// The library's own faces keep their size, so large text is shown in a host's.
ScoreWidgetStyle style(const PictureCase& row) {
  if (row.textSize == ContentSizeCategory::large) return {std::nullopt, std::nullopt};
  return {TovaFont::regular().name(), "TovaSansLatin-SemiBold"};
}

class ScoreWidgetPicture : public ::testing::TestWithParam<PictureCase> {};

TEST_P(ScoreWidgetPicture, LooksAsItDid) {
  const PictureCase& row = GetParam();
  const auto offline = foundation::URLSession::shared().registerProtocol([](const auto&) {
    return foundation::URLResponse{foundation::Error{"Test", 1, "offline"}, {}, 0};
  });
  qt::PictureOptions options;
  options.width = 343;
  options.sheet = row.sheet;
  options.environment = {row.appearance, row.direction, row.textSize, row.scale, "en"};
  const auto view = ScoreWidgetBuilder::buildSwiftUIScoreWidgetView(
      "shop", row.locale, token(row.discount), style(row));
  EXPECT_TRUE(testing::matchesPicture(qt::picture(view, options), row.name));
}

constexpr PictureCase pictures[] = {
    {.name = "row-discount"},
    {.name = "row-discount-dark", .appearance = Appearance::dark},
    {.name = "row-discount-3x", .scale = 3},
    {.name = "row-discount-rtl", .direction = LayoutDirection::rightToLeft},
    {.name = "row-discount-large-text", .textSize = ContentSizeCategory::extraExtraExtraLarge},
    {.name = "row-plain-es", .discount = false, .locale = "es"},
    {.name = "row-plain-dark-3x", .discount = false, .appearance = Appearance::dark, .scale = 3},
    {.name = "sheet-discount", .sheet = true},
    {.name = "sheet-discount-dark-3x", .sheet = true, .appearance = Appearance::dark, .scale = 3},
    {.name = "sheet-plain-es", .sheet = true, .discount = false, .locale = "es"},
    {.name = "sheet-discount-es-dark",
     .sheet = true,
     .locale = "es",
     .appearance = Appearance::dark},
    {.name = "sheet-discount-rtl", .sheet = true, .direction = LayoutDirection::rightToLeft},
    {.name = "sheet-discount-large-text",
     .sheet = true,
     .textSize = ContentSizeCategory::extraExtraExtraLarge},
};

INSTANTIATE_TEST_SUITE_P(RowsAndSheets, ScoreWidgetPicture, ::testing::ValuesIn(pictures),
                         [](const auto& tested) {
                           std::string name = tested.param.name;
                           std::replace(name.begin(), name.end(), '-', '_');
                           return name;
                         });

}  // namespace
}  // namespace quorix
