#include "platform/graphics/AssetCatalog.h"

#include "Vectors.h"
#include "platform/foundation/Bundle.h"
#include "platform/graphics/AssetContents.h"
#include "platform/graphics/ColorComponents.h"

namespace quorix::graphics {

void PrintTo(const RGBA& c, std::ostream* out) {
  *out << "rgba(" << +c.red << ' ' << +c.green << ' ' << +c.blue << ' ' << +c.alpha << ')';
}

namespace {

using foundation::Bundle;
using foundation::Data;

TEST(ColorComponents, EverySpellingAndNothingElse) {
  const struct {
    std::string_view red, alpha;
    std::optional<RGBA> expected;
  } rows[] = {
      {"0xFF", "1.000", RGBA{255, 0, 0, 255}}, {"0x0a", "0.5", RGBA{10, 0, 0, 128}},
      {"255", "", RGBA{255, 0, 0, 255}},       {"1", "1", RGBA{1, 0, 0, 255}},
      {"0.200", "0", RGBA{51, 0, 0, 0}},       {"-0.25", "1.5", RGBA{0, 0, 0, 255}},
  };
  for (const auto& [red, alpha, expected] : rows) {
    EXPECT_EQ(makeColor(ColorSpace::sRGB, red, "0", "0", alpha), expected) << red << ", " << alpha;
  }
  for (const char* none : {"256", "0xGG", "", "0,5", "red"}) {
    EXPECT_EQ(makeColor(ColorSpace::sRGB, "0", none, "0", "1.0"), std::nullopt) << none;
  }
  EXPECT_EQ(makeColor(ColorSpace::sRGB, "0", "0", "0", "opaque"), std::nullopt);
}

TEST(AssetContents, ChoosesTheEntryForEachAppearance) {
  forEachRow("color_sets", [](simdjson::dom::element row) {
    const auto set = parseColorSet(simdjson::to_string(row["contents"]));
    ASSERT_EQ(set.has_value(), !row["light"].is_null());
    if (!set) return;
    EXPECT_EQ(set->resolve(Appearance::light).green, std::int64_t(row["light"]));
    EXPECT_EQ(set->resolve(Appearance::dark).green, std::int64_t(row["dark"]));
  });
  EXPECT_EQ(parseColorSet("{"), std::nullopt);
}

const Bundle::Ref catalog = Bundle::open(TEST_DATA "/catalog");

TEST(AssetCatalog, NamesFollowTheNamespacesOfFolders) {
  EXPECT_EQ(dataSet(catalog, "Fonts/A").value(), Data("in namespace\n"));
  EXPECT_EQ(dataSet(catalog, "B").value(), Data("in group\n"));
  EXPECT_EQ(dataSet(catalog, "A"), std::nullopt);
  EXPECT_EQ(dataSet(catalog, "Group/B"), std::nullopt);
  EXPECT_EQ(dataSet(catalog, "C"), std::nullopt) << "a file name is not a path";
  EXPECT_EQ(colorSet(catalog, "B"), std::nullopt) << "another kind of asset";
}

TEST(AssetCatalog, ImagesNeedAReadableLightFile) {
  const auto both = imageSet(catalog, "both");
  ASSERT_TRUE(both);
  EXPECT_TRUE(both->isTemplate);
  EXPECT_EQ(std::pair(both->width, both->height), std::pair(4.0, 3.0));
  EXPECT_NE(both->svg(Appearance::dark), both->svg(Appearance::light));
  const auto noDark = imageSet(catalog, "noDark");
  ASSERT_TRUE(noDark);
  EXPECT_FALSE(noDark->isTemplate);
  EXPECT_EQ(noDark->svg(Appearance::dark), both->svg(Appearance::light));
  for (const char* name : {"noFile", "broken", "unknown"}) {
    EXPECT_FALSE(imageSet(catalog, name)) << name;
  }
}

}  // namespace
}  // namespace quorix::graphics
