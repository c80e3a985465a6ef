#include <gtest/gtest.h>

#include <algorithm>
#include <memory>
#include <optional>
#include <ostream>
#include <string>
#include <string_view>

#include "QuorixWidgets/info/InfoWidgetView.h"
#include "QuorixWidgets/localization/TovaFont.h"
#include "qt/Picture.h"
#include "tests/qt/MatchesPicture.h"

namespace quorix {
namespace {

using graphics::Appearance;
using layout::LayoutDirection;
using swiftui::ContentSizeCategory;

struct PictureCase {
  const char* name;
  const char* locale = "en";
  bool border = false;
  std::optional<std::string_view> sheetFor = std::nullopt;  ///< opened; the shopper's name
  std::optional<double> percentile = std::nullopt;
  Appearance appearance = Appearance::light;
  double scale = 1;
  LayoutDirection direction = LayoutDirection::leftToRight;
  ContentSizeCategory textSize = ContentSizeCategory::large;
};

void PrintTo(const PictureCase& row, std::ostream* out) { *out << row.name; }

/// The library's own faces keep their size, so large text is shown in a host's.
SwiftUIStyleConfiguration style(const PictureCase& row) {
  if (row.textSize == ContentSizeCategory::large) return {{}, {}, {}, row.border};
  return {TovaFont::regular().name(), "TovaSansLatin-SemiBold", {}, row.border};
}

class InfoWidgetPicture : public ::testing::TestWithParam<PictureCase> {};

TEST_P(InfoWidgetPicture, LooksAsItDid) {
  const PictureCase& row = GetParam();
  const auto name = row.sheetFor && !row.sheetFor->empty()
                        ? std::optional<std::string>(*row.sheetFor)
                        : std::nullopt;
  const auto model = std::make_shared<InfoWidgetViewModel>(name, row.locale, style(row));
  if (row.percentile) model->userDetails = UserDetails{0, 0, *row.percentile};
  qt::PictureOptions options;
  options.width = 343;
  options.sheet = row.sheetFor.has_value();
  options.environment = {row.appearance, row.direction, row.textSize, row.scale, "en"};
  EXPECT_TRUE(testing::matchesPicture(qt::picture(InfoWidgetView{model}, options), row.name));
}

constexpr PictureCase pictures[] = {
    {.name = "info"},
    {.name = "info-dark-3x", .appearance = Appearance::dark, .scale = 3},
    {.name = "info-de-2x", .locale = "de", .scale = 2},
    {.name = "info-ar-2x", .locale = "ar", .scale = 2, .direction = LayoutDirection::rightToLeft},
    {.name = "info-border", .border = true},
    {.name = "info-personal-2x", .percentile = 12, .scale = 2},
    {.name = "info-border-large-text",
     .border = true,
     .textSize = ContentSizeCategory::extraExtraExtraLarge},
    {.name = "info-sheet", .sheetFor = ""},
    {.name = "info-sheet-named-rtl-dark",
     .sheetFor = "Ann",
     .appearance = Appearance::dark,
     .direction = LayoutDirection::rightToLeft},
};

INSTANTIATE_TEST_SUITE_P(Widgets, InfoWidgetPicture, ::testing::ValuesIn(pictures),
                         [](const auto& tested) {
                           std::string name = tested.param.name;
                           std::replace(name.begin(), name.end(), '-', '_');
                           return name;
                         });

}  // namespace
}  // namespace quorix
