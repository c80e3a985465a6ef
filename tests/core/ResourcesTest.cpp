#include <algorithm>
#include <cmath>
#include <thread>

#include "QuorixWidgets/localization/Assets.h"
#include "QuorixWidgets/localization/Font.h"
#include "platform/graphics/AssetCatalog.h"
#include "platform/graphics/AssetContents.h"
#include "platform/graphics/FontManager.h"
#include "tests/core/Resources.h"
#include "tests/core/Vectors.h"

namespace quorix {
namespace {

using foundation::Bundle;
using graphics::Appearance;
using graphics::RGBA;
using testing::replaceLibraryBundle;

TEST(AssetContents, ReadsColorsInEverySpellingAndNothingElse) {
  forEachRow("color_components", [](simdjson::dom::element row) {
    const auto color = graphics::makeColor(graphics::ColorSpace::sRGB, ::text(row, "red"), "0", "0",
                                           ::text(row, "alpha"));
    ASSERT_EQ(color.has_value(), !row["color"].is_null());
    if (!color) return;
    EXPECT_EQ(color->red, std::int64_t(row["color"].at(0)));
    EXPECT_EQ(color->alpha, std::int64_t(row["color"].at(3)));
  });
}

TEST(AssetContents, ChoosesTheEntryForEachAppearance) {
  forEachRow("color_sets", [](simdjson::dom::element row) {
    const auto set = graphics::parseColorSet(simdjson::to_string(row["contents"]));
    ASSERT_EQ(set.has_value(), !row["light"].is_null());
    if (!set) return;
    EXPECT_EQ(set->resolve(Appearance::light).green, std::int64_t(row["light"]));
    EXPECT_EQ(set->resolve(Appearance::dark).green, std::int64_t(row["dark"]));
  });
  EXPECT_EQ(graphics::parseColorSet("{"), std::nullopt);
}

const Bundle::Ref catalog = Bundle::open(TEST_DATA "/catalog");

TEST(AssetCatalog, NamesFollowTheNamespacesOfFolders) {
  EXPECT_EQ(graphics::dataSet(catalog, "Fonts/A").value(), foundation::Data("in namespace\n"));
  EXPECT_EQ(graphics::dataSet(catalog, "B").value(), foundation::Data("in group\n"));
  EXPECT_EQ(graphics::dataSet(catalog, "A"), std::nullopt);
  EXPECT_EQ(graphics::dataSet(catalog, "Group/B"), std::nullopt);
  EXPECT_EQ(graphics::dataSet(catalog, "C"), std::nullopt) << "a file name is not a path";
  EXPECT_EQ(graphics::colorSet(catalog, "B"), std::nullopt) << "another kind of asset";
}

TEST(AssetCatalog, ImagesNeedAReadableLightFile) {
  const auto both = graphics::imageSet(catalog, "both");
  ASSERT_TRUE(both);
  EXPECT_TRUE(both->isTemplate);
  EXPECT_EQ(std::pair(both->width, both->height), std::pair(4.0, 3.0));
  EXPECT_NE(both->svg(Appearance::dark), both->svg(Appearance::light));
  const auto noDark = graphics::imageSet(catalog, "noDark");
  ASSERT_TRUE(noDark);
  EXPECT_FALSE(noDark->isTemplate);
  EXPECT_EQ(noDark->svg(Appearance::dark), both->svg(Appearance::light));
  for (const char* name : {"noFile", "broken", "unknown"}) {
    EXPECT_FALSE(graphics::imageSet(catalog, name)) << name;
  }
}

constexpr Appearance kAppearances[] = {Appearance::light, Appearance::dark};

RGBA color(std::string_view name, Appearance appearance) {
  return graphics::colorSet(Bundle::embedded(), name).value().resolve(appearance);
}

/// Relative luminance and contrast ratio by the accessibility guidelines (WCAG 2).
double luminance(RGBA c) {
  const auto linear = [](std::uint8_t channel) {
    const double v = channel / 255.0;
    return v <= 0.03928 ? v / 12.92 : std::pow((v + 0.055) / 1.055, 2.4);
  };
  return 0.2126 * linear(c.red) + 0.7152 * linear(c.green) + 0.0722 * linear(c.blue);
}

double contrast(RGBA a, RGBA b) {
  const double la = luminance(a), lb = luminance(b);
  return (std::max(la, lb) + 0.05) / (std::min(la, lb) + 0.05);
}

TEST(Palette, TextIsLegibleOnEveryBackground) {
  ASSERT_NEAR(contrast({0, 0, 0}, {255, 255, 255}), 21, 0.001);
  for (const auto appearance : kAppearances) {
    for (const char* background : {"Background", "OverlayBackground"}) {
      for (const char* text : {"DefaultFontColor", "Grey1", "Grey2"}) {
        const RGBA ink = color(text, appearance);
        EXPECT_EQ(ink.alpha, 255);
        EXPECT_GE(contrast(ink, color(background, appearance)), 4.5)
            << text << " on " << background << (appearance == Appearance::dark ? ", dark" : "");
      }
    }
  }
}

using ResourcesDeathTest = testing::FreshProcessDeathTest;

TEST_F(ResourcesDeathTest, AMissingColorStopsTheImperativeFormOnly) {
  const auto empty = testing::memoryBundle({});
  EXPECT_IN_FRESH_PROCESS(
      (replaceLibraryBundle(empty), !Color::widgetBackground().resolve(Appearance::light)));
  EXPECT_DEATH((replaceLibraryBundle(empty), UIColor::widgetBackground()),
               "^QuorixWidgets/Colors: Fatal error: No color named 'Background' in the asset "
               "catalog\n");
}

TEST_F(ResourcesDeathTest, WithoutALibraryBundleTheHostsMainBundleAnswers) {
  EXPECT_IN_FRESH_PROCESS((replaceLibraryBundle(nullptr), Bundle::setMain(Bundle::embedded()),
                           Color::widgetBackground().resolve(Appearance::light) &&
                               UIColor::widgetBackground() && resourceBundle()));
}

TEST_F(ResourcesDeathTest, AHostsRegistrationIsFoundByIdentifierAndNotBySymbol) {
  const auto live = testing::memoryBundle({});
  EXPECT_IN_FRESH_PROCESS((Bundle::registerBundle(kResourceBundleIdentifier, live),
                           libraryBundle() == live && resourceBundle() == Bundle::embedded() &&
                               ImageResource::close().bundle == Bundle::embedded()));
}

/// The theme replaces one red, by identifier and by symbol. Everything else stays the library's.
TEST_F(ResourcesDeathTest, AThemeLiesOverAllResources) {
  const std::string red = R"({"colors": [{"idiom": "universal", "color": {"components":
      {"red": "1.0", "green": "0", "blue": "0", "alpha": "1"}}}]})";
  const auto theme =
      testing::memoryBundle({{"Assets.xcassets/Background.colorset/Contents.json", red},
                             {"Assets.xcassets/Grey1.colorset/Contents.json", red}});
  const auto shown = [](const swiftui::Color& color) { return color.resolve(Appearance::dark); };
  const auto grey1 = [&] { return shown(swiftui::Color(ColorResource::grey1())); };
  const auto grey2 = [&] { return shown(swiftui::Color(ColorResource::grey2())); };
  EXPECT_IN_FRESH_PROCESS((setTheme(theme), shown(Color::widgetBackground()) == RGBA{255, 0, 0} &&
                                                grey1() == RGBA{255, 0, 0} &&
                                                grey2() == color("Grey2", Appearance::dark)));
  EXPECT_IN_FRESH_PROCESS(
      (setTheme(theme), setTheme(nullptr), grey1() == color("Grey1", Appearance::dark)));
}

TEST(ConcurrentResources, FirstReadsFromManyThreadsAgree) {
  std::vector<std::thread> threads;
  std::vector<uikit::UIColor::Ref> colors(8);
  for (std::size_t i = 0; i < colors.size(); ++i) {
    threads.emplace_back([&colors, i] {
      colors[i] = UIColor::defaultFontColor();
      EXPECT_TRUE(Color::defaultFontColor().resolve(Appearance::dark));
      EXPECT_TRUE(graphics::imageSet(ImageResource::close().bundle, "close"));
      EXPECT_EQ(ColorResource::grey1().bundle, resourceBundle());
      EXPECT_EQ(QuorixFont::regular().name(), "Saans-Regular");
      EXPECT_EQ(QuorixFont::medium().name(), "Saans-Medium");
      EXPECT_EQ(TovaFont::regular().name(), "TovaSansLatin-Regular");
      // A bundle that exists only for a moment, while others are read.
      EXPECT_FALSE(graphics::colorSet(testing::memoryBundle({}), "Grey1"));
    });
  }
  for (auto& thread : threads) thread.join();
  EXPECT_EQ(std::count(colors.begin(), colors.end(), colors[0]), 8);
  EXPECT_EQ(graphics::FontManager::shared().faces().size(), 4u) << "each face once";
}

}  // namespace
}  // namespace quorix
