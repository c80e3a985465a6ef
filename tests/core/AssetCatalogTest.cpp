#include "platform/graphics/AssetCatalog.h"

#include <gtest/gtest.h>

#include "platform/graphics/AssetContents.h"
#include "platform/graphics/ColorComponents.h"
#include "tests/core/MemoryBundle.h"

namespace quorix::graphics {

void PrintTo(const RGBA& c, std::ostream* out) {
  *out << "rgba(" << +c.red << ' ' << +c.green << ' ' << +c.blue << ' ' << +c.alpha << ')';
}

namespace {

using foundation::Data;
using testing::memoryBundle;

TEST(ColorComponents, EverySpellingAndNothingElse) {
  struct Case {
    std::string_view red, alpha;
    std::optional<RGBA> expected;
  };
  const Case cases[] = {
      {"0xFF", "1.000", RGBA{255, 0, 0, 255}},
      {"0x0a", "0.5", RGBA{10, 0, 0, 128}},
      {"255", "", RGBA{255, 0, 0, 255}},
      {"1", "1", RGBA{1, 0, 0, 255}},
      {"0.200", "0", RGBA{51, 0, 0, 0}},
      {"-0.25", "1.5", RGBA{0, 0, 0, 255}},
      {"256", "1.0", {}},
      {"0xGG", "1.0", {}},
      {"", "1.0", {}},
      {"0,5", "1.0", {}},
      {"0.5", "opaque", {}},
  };
  for (const auto& [red, alpha, expected] : cases) {
    EXPECT_EQ(makeColor(ColorSpace::sRGB, red, "0", "0", alpha), expected) << red << ", " << alpha;
  }
}

std::string component(std::string_view white, std::string_view extra = "") {
  const std::string text(white);
  return "{" + std::string(extra) + R"("color":{"color-space":"srgb","components":{"red":")" +
         text + R"(","green":")" + text + R"(","blue":")" + text +
         R"(","alpha":"1.000"}},"idiom":"universal"})";
}

constexpr std::string_view kDark = R"("appearances":[{"appearance":"luminosity","value":"dark"}],)";
constexpr std::string_view kLight =
    R"("appearances":[{"appearance":"luminosity","value":"light"}],)";
constexpr std::string_view kContrast =
    R"("appearances":[{"appearance":"luminosity","value":"dark"},{"appearance":"contrast","value":"high"}],)";

std::string colors(const std::string& entries) { return R"({"colors":[)" + entries + "]}"; }

TEST(AssetContents, ChoosesTheEntryForEachAppearance) {
  struct Case {
    std::string json;
    std::optional<int> light, dark;
  };
  const std::string device = R"({"idiom":"watch",)" + component("99").substr(1);
  const Case cases[] = {
      {colors(component("1")), 1, 1},
      {colors(component("1") + "," + component("2", kDark)), 1, 2},
      {colors(component("1") + "," + component("3", kLight)), 3, 1},
      {colors(component("9", kContrast) + "," + component("1") + "," + component("2", kDark)), 1,
       2},
      {colors(device + "," + component("1")), 1, 1},
      {colors(component("1") + "," + component("0xZZ", kDark)), 1, 1},
      {colors(component("2", kDark)), {}, {}},
      {colors(""), {}, {}},
      {R"({"colors":[1,"x",null]})", {}, {}},
      {"{", {}, {}},
  };
  for (const auto& [json, light, dark] : cases) {
    const auto set = parseColorSet(json);
    ASSERT_EQ(set.has_value(), light.has_value()) << json;
    if (!set) continue;
    EXPECT_EQ(set->resolve(Appearance::light).green, *light) << json;
    EXPECT_EQ(set->resolve(Appearance::dark).green, *dark) << json;
  }
}

const std::string kNamespace = R"({"properties":{"provides-namespace":true}})";
const std::string kSvg = R"(<svg width="4" height="3"/>)";

TEST(AssetCatalog, NamesFollowTheNamespacesOfFolders) {
  const std::string data = R"({"data":[{"idiom":"universal","filename":"f.bin"}]})";
  const auto bundle = memoryBundle({
      {"Assets.xcassets/Fonts/Contents.json", kNamespace},
      {"Assets.xcassets/Fonts/A.dataset/Contents.json", data},
      {"Assets.xcassets/Fonts/A.dataset/f.bin", "in namespace"},
      {"Assets.xcassets/Group/B.dataset/Contents.json", data},
      {"Assets.xcassets/Group/B.dataset/f.bin", "in group"},
      {"Assets.xcassets/C.dataset/Contents.json",
       R"({"data":[{"filename":"../Group/B.dataset/f.bin"}]})"},
  });
  EXPECT_EQ(dataSet(bundle, "Fonts/A").value(), Data("in namespace"));
  EXPECT_EQ(dataSet(bundle, "B").value(), Data("in group"));
  EXPECT_EQ(dataSet(bundle, "A"), std::nullopt);
  EXPECT_EQ(dataSet(bundle, "Group/B"), std::nullopt);
  EXPECT_EQ(dataSet(bundle, "C"), std::nullopt) << "a file name is not a path";
  EXPECT_EQ(colorSet(bundle, "B"), std::nullopt) << "another kind of asset";
}

TEST(AssetCatalog, ImagesNeedAReadableLightFile) {
  const auto image = [](const std::string& entries, const std::string& rest = "") {
    return R"({"images":[)" + entries + "]" + rest + "}";
  };
  const std::string dark = "{" + std::string(kDark) + R"("filename":"d.svg"})";
  const std::string light = R"({"filename":"l.svg"})";
  const std::string other = kSvg + "<!-- dark -->";
  const auto bundle = memoryBundle({
      {"Assets.xcassets/both.imageset/Contents.json",
       image(light + "," + dark, R"(,"properties":{"template-rendering-intent":"template"})")},
      {"Assets.xcassets/both.imageset/l.svg", kSvg},
      {"Assets.xcassets/both.imageset/d.svg", other},
      {"Assets.xcassets/noDark.imageset/Contents.json", image(light + "," + dark)},
      {"Assets.xcassets/noDark.imageset/l.svg", kSvg},
      {"Assets.xcassets/noFile.imageset/Contents.json", image(light)},
      {"Assets.xcassets/broken.imageset/Contents.json", image(light)},
      {"Assets.xcassets/broken.imageset/l.svg", "<svg"},
  });
  const auto both = imageSet(bundle, "both");
  ASSERT_TRUE(both);
  EXPECT_TRUE(both->isTemplate);
  EXPECT_EQ(std::pair(both->width, both->height), std::pair(4.0, 3.0));
  EXPECT_EQ(both->svg(Appearance::dark), Data(other));
  const auto noDark = imageSet(bundle, "noDark");
  ASSERT_TRUE(noDark);
  EXPECT_FALSE(noDark->isTemplate);
  EXPECT_EQ(noDark->svg(Appearance::dark), Data(kSvg));
  for (const char* name : {"noFile", "broken", "unknown"}) {
    EXPECT_FALSE(imageSet(bundle, name)) << name;
  }
}

}  // namespace
}  // namespace quorix::graphics
