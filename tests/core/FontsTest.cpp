#include <gtest/gtest.h>

#include "QuorixWidgets/localization/Font.h"
#include "platform/graphics/AssetCatalog.h"
#include "platform/graphics/FontManager.h"
#include "tests/core/FreshProcess.h"
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

using FontsDeathTest = testing::FreshProcessDeathTest;
using Names = std::vector<std::string>;

TEST_F(FontsDeathTest, AHandleRegistersItsFaceAloneAndOnce) {
  EXPECT_IN_FRESH_PROCESS(
      QuorixFont::medium().name() == "Saans-Medium" && registered() == Names{"Saans-Medium"} &&
      QuorixFont::medium().name() == "Saans-Medium" && registered() == Names{"Saans-Medium"} &&
      QuorixFont::regular().name() == "Saans-Regular" && registered().size() == 2);
}

TEST_F(FontsDeathTest, TheBrandFamilyComesAsAWhole) {
  EXPECT_IN_FRESH_PROCESS(
      TovaFont::regular().name() == "TovaSansLatin-Regular" &&
      (registered() == Names{"TovaSansLatin-Regular", "TovaSansLatin-SemiBold"}));
}

void takeName(std::string_view name) {
  const auto data = graphics::dataSet(libraryBundle(), "Fonts/" + std::string(name));
  FontManager::shared().registerGraphicsFont(GraphicsFont::fromData(*data).value());
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
  EXPECT_DEATH((takeName("Saans-Medium"), QuorixFont::medium()), kStop);
  EXPECT_DEATH((takeName("TovaSansLatin-SemiBold"), TovaFont::regular()), kStop);
  EXPECT_DEATH((testing::replaceLibraryBundle(testing::memoryBundle({})), QuorixFont::medium()),
               kStop);
  EXPECT_DEATH((testing::replaceLibraryBundle(broken("no font")), QuorixFont::medium()), kStop);
  // The host's main bundle does not stand in for the library's here.
  EXPECT_DEATH((foundation::Bundle::setMain(foundation::Bundle::embedded()),
                testing::replaceLibraryBundle(nullptr), QuorixFont::medium()),
               kStop);
}

}  // namespace
}  // namespace quorix
