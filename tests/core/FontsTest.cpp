#include "QuorixWidgets/localization/Font.h"
#include "platform/graphics/AssetCatalog.h"
#include "platform/swiftui/TreePrinter.h"
#include "tests/core/Resources.h"
#include "tests/core/Widgets.h"

namespace quorix {
namespace {

using graphics::FontManager;
using graphics::GraphicsFont;

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
  FontManager::shared().registerGraphicsFont(GraphicsFont::fromData(own).value());
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
    FontManager::shared().setRegistrationObserver([&](const GraphicsFont& face) {
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
