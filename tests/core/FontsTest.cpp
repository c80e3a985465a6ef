#include <gtest/gtest.h>

#include <cstdlib>
#include <functional>
#include <thread>

#include "QuorixWidgets/localization/Font.h"
#include "QuorixWidgets/localization/FontError.h"
#include "QuorixWidgets/localization/ResourceBundle.h"
#include "QuorixWidgets/localization/UIFont.h"
#include "platform/graphics/AssetCatalog.h"
#include "platform/graphics/FontManager.h"
#include "tests/core/MemoryBundle.h"

namespace quorix {
namespace {

using graphics::FontManager;
using graphics::GraphicsFont;

const char* const kStop =
    "^QuorixWidgets/Fonts: Fatal error: Failed to register font: The operation could not be "
    "completed. \\(QuorixWidgets.FontError error 0.\\)\n$";

std::vector<std::string> registered() {
  std::vector<std::string> names;
  for (const auto& face : FontManager::shared().faces()) names.push_back(face.postScriptName());
  return names;
}

/// Registration lasts as long as its process, so each of these runs in one of its own.
class FontsDeathTest : public ::testing::Test {
 protected:
  void SetUp() override { GTEST_FLAG_SET(death_test_style, "threadsafe"); }
};

#define EXPECT_IN_FRESH_PROCESS(condition) \
  EXPECT_EXIT(std::exit((condition) ? 0 : 1), ::testing::ExitedWithCode(0), "")

using Names = std::vector<std::string>;

TEST_F(FontsDeathTest, AHandleRegistersItsFaceOnce) {
  EXPECT_IN_FRESH_PROCESS(QuorixFont::regular().name() == "Saans-Regular" &&
                          QuorixFont::regular().name() == "Saans-Regular" &&
                          registered() == Names{"Saans-Regular"});
}

TEST_F(FontsDeathTest, MediumLeavesRegularAlone) {
  EXPECT_IN_FRESH_PROCESS(
      QuorixFont::medium().name() == "Saans-Medium" && registered() == Names{"Saans-Medium"} &&
      !uikit::UIFont::named("Saans-Regular", 13) &&
      QuorixFont::regular().name() == "Saans-Regular" && uikit::UIFont::named("Saans-Regular", 13));
}

TEST_F(FontsDeathTest, TheBrandFamilyComesAsAWhole) {
  EXPECT_IN_FRESH_PROCESS(
      TovaFont::regular().name() == "TovaSansLatin-Regular" &&
      (registered() == Names{"TovaSansLatin-Regular", "TovaSansLatin-SemiBold"}) &&
      uikit::UIFont::named("TovaSansLatin-SemiBold", 12));
}

void takeName(std::string_view name) {
  const auto data = graphics::dataSet(libraryBundle(), "Fonts/" + std::string(name));
  FontManager::shared().registerGraphicsFont(GraphicsFont::fromData(*data).value());
}

TEST_F(FontsDeathTest, AFaceThatCannotBeRegisteredStopsTheProcess) {
  const std::string folder = "Assets.xcassets/Fonts/";
  const std::string space = R"({"properties":{"provides-namespace":true}})";
  const auto replaceBundle = [](foundation::Bundle::Ref bundle) {
    libraryBundle();
    foundation::Bundle::registerBundle(kResourceBundleIdentifier, std::move(bundle));
  };
  const auto broken = [&](const std::string& bytes) {
    return testing::memoryBundle(
        {{folder + "Contents.json", space},
         {folder + "Saans-Medium.dataset/Contents.json", R"({"data":[{"filename":"f.otf"}]})"},
         {folder + "Saans-Medium.dataset/f.otf", bytes}});
  };
  EXPECT_DEATH((takeName("Saans-Medium"), QuorixFont::medium()), kStop);
  EXPECT_DEATH((takeName("TovaSansLatin-SemiBold"), TovaFont::regular()), kStop);
  EXPECT_DEATH((replaceBundle(testing::memoryBundle({})), QuorixFont::medium()), kStop);
  EXPECT_DEATH((replaceBundle(broken("no font")), QuorixFont::medium()), kStop);
  // The host's main bundle does not stand in for the library's here.
  EXPECT_DEATH((foundation::Bundle::setMain(foundation::Bundle::embedded()), replaceBundle(nullptr),
                QuorixFont::medium()),
               kStop);
  EXPECT_DEATH((FontManager::shared().setSystemLookup([](std::string_view) { return true; }),
                QuorixFont::medium()),
               kStop);
}

TEST(Fonts, ToolkitFontsCarryFaceSizeAndScaling) {
  const auto fixed = Font::Quorix::fixed(QuorixFont::regular(), 13);
  EXPECT_EQ(fixed, swiftui::Font::custom("Saans-Regular", swiftui::Font::FixedSize{13}));
  const auto relative = Font::Tova::relative(TovaFont::regular(), 16, swiftui::TextStyle::headline);
  EXPECT_EQ(relative,
            swiftui::Font::custom("TovaSansLatin-Regular", 16, swiftui::TextStyle::headline));
  const auto imperative = UIFont::Tova::fixed(TovaFont::regular(), 12.5);
  EXPECT_EQ(imperative->name(), "TovaSansLatin-Regular");
  EXPECT_EQ(imperative->pointSize(), 12.5);
  EXPECT_EQ(uikit::UIFont::named("No-Such-Face", 12), nullptr);
}

TEST(FontError, IsAnEqualAndHashableError) {
  constexpr auto error = FontError::failedToRegisterFont;
  EXPECT_EQ(std::hash<FontError>()(error), std::hash<FontError>()(FontError{}));
  EXPECT_EQ(error, FontError{});
  EXPECT_EQ(describe(error).domain, "QuorixWidgets.FontError");
  EXPECT_EQ(describe(error).code, 0);
}

TEST(ConcurrentFonts, FirstReadsFromManyThreadsRegisterOnce) {
  std::vector<std::thread> threads;
  for (int i = 0; i < 8; ++i) {
    threads.emplace_back([] {
      EXPECT_EQ(QuorixFont::regular().name(), "Saans-Regular");
      EXPECT_EQ(QuorixFont::medium().name(), "Saans-Medium");
      EXPECT_EQ(TovaFont::regular().name(), "TovaSansLatin-Regular");
      EXPECT_EQ(UIFont::Quorix::fixed(QuorixFont::medium(), 13)->pointSize(), 13);
    });
  }
  for (auto& thread : threads) thread.join();
  EXPECT_EQ(registered().size(), 4U);
}

}  // namespace
}  // namespace quorix
