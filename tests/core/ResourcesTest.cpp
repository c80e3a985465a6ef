#include <algorithm>
#include <cmath>
#include <thread>

#include "QuorixWidgets/localization/Assets.h"
#include "QuorixWidgets/localization/Font.h"
#include "platform/graphics/AssetCatalog.h"
#include "platform/graphics/AssetContents.h"
#include "platform/swiftui/TreePrinter.h"
#include "tests/core/Resources.h"
#include "tests/core/Vectors.h"
#include "tests/core/Widgets.h"

namespace quorix {
namespace {

using foundation::Bundle;
using graphics::Appearance;
using graphics::FontManager;
using graphics::RGBA;
using testing::replaceLibraryBundle;

TEST(AssetContents, ReadsColorsInEverySpellingAndNothingElse) {
  forEachRow("color_components", [](simdjson::dom::element row) {
    const auto set = graphics::parseColorSet(
        R"({"colors": [{"color": {"components": {"green": "0", "blue": "0", "red": )" +
        simdjson::to_string(row["red"]) + R"(, "alpha": )" + simdjson::to_string(row["alpha"]) +
        "}}}]}");
    ASSERT_EQ(set.has_value(), !row["color"].is_null());
    if (!set) return;
    const RGBA color = set->resolve(Appearance::light);
    EXPECT_EQ(color.red, std::int64_t(row["color"].at(0)));
    EXPECT_EQ(color.alpha, std::int64_t(row["color"].at(3)));
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
  EXPECT_EQ(FontManager::shared().faces().size(), 4u) << "each face once";
}

// An emulator adds a line.
const char* const kStop =
    "^QuorixWidgets/Fonts: Fatal error: Failed to register font: The operation could not be "
    "completed. \\(QuorixWidgets.FontError error 0.\\)\n";

std::vector<std::string> registered() {
  std::vector<std::string> names;
  for (const auto& face : FontManager::shared().faces()) names.push_back(face.postScriptName());
  return names;
}

using FontsDeathTest = testing::FreshProcessDeathTest;
using Names = std::vector<std::string>;

TEST_F(FontsDeathTest, AHandleRegistersItsFaceAloneAndOnceAndTheBrandsItsFamily) {
  EXPECT_IN_FRESH_PROCESS(
      QuorixFont::medium().name() == "Saans-Medium" && registered() == Names{"Saans-Medium"} &&
      QuorixFont::medium().name() == "Saans-Medium" && registered() == Names{"Saans-Medium"} &&
      QuorixFont::regular().name() == "Saans-Regular" && registered().size() == 2);
  EXPECT_IN_FRESH_PROCESS(
      TovaFont::regular().name() == "TovaSansLatin-Regular" &&
      (registered() == Names{"TovaSansLatin-Regular", "TovaSansLatin-SemiBold"}));
}

foundation::Data fileOf(std::string_view name) {
  return graphics::dataSet(libraryBundle(), "Fonts/" + std::string(name)).value();
}

/// Registers a file of the host under that name: the library's file and one more byte.
void takeName(std::string_view name) {
  const foundation::Data own(std::string(fileOf(name).text()) + '\0');
  FontManager::shared().registerGraphicsFont(graphics::GraphicsFont::fromData(own).value());
}

// If a shop has registered a face with one of our names, its own face stays in use.
TEST_F(FontsDeathTest, AFaceThatTheHostRegisteredStays) {
  EXPECT_IN_FRESH_PROCESS(
      (takeName("Saans-Medium"),
       QuorixFont::medium().name() == "Saans-Medium" && registered() == Names{"Saans-Medium"} &&
           FontManager::shared().data("Saans-Medium") != fileOf("Saans-Medium")));
  EXPECT_IN_FRESH_PROCESS(
      (takeName("TovaSansLatin-SemiBold"), TovaFont::regular(),
       registered() == Names{"TovaSansLatin-SemiBold", "TovaSansLatin-Regular"}));
}

TEST_F(FontsDeathTest, AFaceOfTheSystemsOwnIsNoRegistration) {
  EXPECT_IN_FRESH_PROCESS(
      (FontManager::shared().setSystemLookup([](std::string_view) { return true; }),
       QuorixFont::regular().name() == "Saans-Regular" && registered() == Names{"Saans-Regular"}));
}

TEST_F(FontsDeathTest, TheToolkitIsToldOfEachFaceOnce) {
  EXPECT_IN_FRESH_PROCESS(([] {
    Names told;
    FontManager::shared().setRegistrationObserver([&](const graphics::GraphicsFont& face) {
      EXPECT_EQ(FontManager::shared().data(face.postScriptName()), face.data());
      told.push_back(face.postScriptName());
    });
    TovaFont::regular();
    QuorixFont::medium();
    return told == registered() && told.size() == 3 &&
           !FontManager::shared().registerGraphicsFont(FontManager::shared().faces()[0]) &&
           told.size() == 3;
  }()));
}

// One row for each, because an earlier one would have registered the face.
TEST_F(FontsDeathTest, AnInfoWidgetReadsTheSemiBoldFaceWhereItsTextNeedsIt) {
  const Names both{"Saans-Regular", "Saans-Medium"};
  const struct {
    const char* of;
    std::optional<double> percentile;
    SwiftUIStyleConfiguration style;
    Names registered;
  } rows[] = {
      {"the figure of the general title", {}, {}, both},
      {"a personal title's bold start", 12, {}, both},
      {"nothing", 40, {}, {"Saans-Regular"}},
      {"a bold start in our face", 12, {{}, "Host-Bold", {}, false}, both},
      {"a bold start in the host's", 12, {"Host-Regular", "Host-Bold", {}, false}, {}},
  };
  for (const auto& row : rows) {
    EXPECT_IN_FRESH_PROCESS(
        (swiftui::printTree(InfoWidgetView{testing::infoModel("en", row.style, row.percentile)}),
         registered() == row.registered))
        << row.of;
  }
}

TEST_F(FontsDeathTest, AFaceThatCannotBeRegisteredStopsTheProcess) {
  const std::string folder = "Assets.xcassets/Fonts/";
  const std::string space = R"({"properties":{"provides-namespace":true}})";
  const auto broken = [&](const std::string& bytes) {
    return testing::memoryBundle(
        {{folder + "Contents.json", space},
         {folder + "Saans-Medium.dataset/Contents.json", R"({"data":[{"filename":"f.otf"}]})"},
         {folder + "Saans-Medium.dataset/f.otf", bytes}});
  };
  EXPECT_DEATH((testing::replaceLibraryBundle(testing::memoryBundle({})), QuorixFont::medium()),
               kStop);
  EXPECT_DEATH((testing::replaceLibraryBundle(broken("no font")), QuorixFont::medium()), kStop);
  // The host's main bundle does not replace the library's here.
  EXPECT_DEATH((foundation::Bundle::setMain(foundation::Bundle::embedded()),
                testing::replaceLibraryBundle(nullptr), QuorixFont::medium()),
               kStop);
}

}  // namespace
}  // namespace quorix
