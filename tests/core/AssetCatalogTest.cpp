#include "platform/graphics/AssetCatalog.h"

#include "Vectors.h"
#include "platform/foundation/Bundle.h"
#include "platform/graphics/AssetContents.h"

namespace quorix::graphics {

namespace {

using foundation::Bundle;
using foundation::Data;

TEST(AssetContents, ReadsColorsInEverySpellingAndNothingElse) {
  forEachRow("color_components", [](simdjson::dom::element row) {
    const auto color = makeColor(ColorSpace::sRGB, text(row, "red"), "0", "0", text(row, "alpha"));
    ASSERT_EQ(color.has_value(), !row["color"].is_null());
    if (!color) return;
    EXPECT_EQ(color->red, std::int64_t(row["color"].at(0)));
    EXPECT_EQ(color->alpha, std::int64_t(row["color"].at(3)));
  });
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
