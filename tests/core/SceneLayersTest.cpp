#include <gtest/gtest.h>

#include <sstream>

#include "platform/hosting/SceneLayers.h"
#include "platform/hosting/SheetPanel.h"

namespace quorix::hosting {
namespace {

using layout::Rect;
using render::EmbedItem;
using render::FillItem;
using render::Scene;

struct Content final : render::Embed {};

constexpr graphics::RGBA ground{255, 255, 255, 255};

EmbedItem embed(Rect frame) { return {frame, std::make_shared<Content>(), {1, 2, 3, 255}}; }
FillItem fill(Rect frame) { return {frame, {9, 9, 9, 255}}; }
render::TextItem text(Rect frame) { return {frame, {}}; }

/// For each layer: the number of its items, its origin and size, and whether an embed follows.
std::string told(const Scene& scene, double scale) {
  std::ostringstream all;
  for (const SceneLayer& layer : layersOf(scene, ground, scale)) {
    all << layer.scene.items.size() << " at " << layer.origin.x << "," << layer.origin.y << " "
        << layer.scene.size.width << "x" << layer.scene.size.height << (layer.embed ? " | " : "");
  }
  return all.str();
}

TEST(SceneLayers, AreCutWhereSomethingPaintsItself) {
  const Rect whole{{}, {100, 200}};
  EmbedItem empty = embed(whole);
  empty.content = nullptr;
  const FillItem panel{whole, ground, 12};
  EmbedItem page = embed(whole);
  page.background = ground;
  page.topCornerRadius = 12;
  const struct {
    std::vector<render::Item> items;
    const char* layers;
    double scale = 1;
  } rows[] = {
      {{fill(whole), fill(whole)}, "2 at 0,0 100x200"},
      {{empty, fill(whole)}, "2 at 0,0 100x200"},
      {{fill(whole), embed(whole)}, "2 at 0,0 100x200 | 0 at 0,0 0x0"},
      {{embed(whole), fill({{50, 8}, {48, 40}}), fill({{60, 10}, {40, 48}})},
       "1 at 0,0 100x200 | 2 at 50,8 50x50"},
      // Letters extend beyond their frame, but not beyond the display list's area.
      {{embed(whole), text({{40, 5}, {20, 10}})}, "1 at 0,0 100x200 | 1 at 30,0 40x25"},
      {{embed(whole), fill({{-10, 190}, {300, 50}})}, "1 at 0,0 100x200 | 1 at 0,190 100x10"},
      {{embed(whole), fill({{500, 0}, {5, 5}})}, "1 at 0,0 100x200 | 1 at 100,0 0x5"},
      {{embed(whole), text({{40, 40.2}, {20, 10.3}})}, "1 at 0,0 100x200 | 1 at 29.5,30 41x31", 2},
      {{embed(whole), fill({{1, 1}, {2, 2}}), embed(whole), fill({{5, 5}, {1, 1}})},
       "1 at 0,0 100x200 | 2 at 0,0 100x200 | 1 at 5,5 1x1"},
      // The part at the bottom in the panel's color needs no picture.
      {{panel, text({{10, 20}, {50, 10}})}, "2 at 0,0 100x40"},
      {{panel, fill({{10, 50.2}, {50, 10}})}, "2 at 0,0 100x61"},
      {{panel, page}, "2 at 0,0 100x12 | 0 at 0,0 0x0"},
      {{panel, render::ClipItem{whole}, embed({{0, 50}, {100, 40}})},
       "3 at 0,0 100x90 | 0 at 0,0 0x0"},
  };
  for (const auto& row : rows) {
    Scene scene;
    scene.size = whole.size;
    scene.items = row.items;
    EXPECT_EQ(told(scene, row.scale), row.layers);
  }
}

struct Tap {
  layout::Point point;
  int area;  ///< -1: none, or an embed takes the tap
};

void expectHits(const Scene& scene, const std::vector<Tap>& taps) {
  for (const Tap& tap : taps) {
    const render::HitArea* hit = scene.hitTest(tap.point);
    EXPECT_EQ(hit ? int(hit - scene.hitAreas.data()) : -1, tap.area)
        << tap.point.x << "," << tap.point.y;
  }
}

TEST(Scene, AnEmbedTakesWhatIsBelowItAndLeavesWhatIsAbove) {
  Scene inner;
  inner.size = {100, 100};
  inner.hitAreas = {{{{}, {100, 100}}, {}}, {{{80, 0}, {20, 20}}, {}}};
  EmbedItem page = embed({{0, 10}, {100, 60}});
  page.hitAreasBelow = 1;
  page.topCornerRadius = 5;
  inner.items = {page};
  Scene scene;
  scene.hitAreas = {{{{}, {300, 300}}, {}}};
  scene.append(inner, {50, 50});
  const std::vector<Tap> taps = {
      {{10, 10}, 0},  {{60, 55}, 1},   {{60, 62}, 1},   {{60, 66}, -1},
      {{140, 66}, 2}, {{140, 75}, -1}, {{60, 119}, -1}, {{60, 121}, 1},
  };
  expectHits(scene, taps);
}

TEST(Scene, LeavesEachAreaRoomToTap) {
  Scene scene;
  // A line of text, a small button, and two buttons close together.
  scene.hitAreas = {{{{0, 100}, {300, 16}}, {}},
                    {{{100, 200}, {10, 10}}, {}},
                    {{{100, 300}, {12, 12}}, {}},
                    {{{118, 300}, {12, 12}}, {}}};
  const std::vector<Tap> taps = {
      {{150, 87}, 0},  {{150, 129}, 0}, {{150, 85}, -1}, {{150, 131}, -1}, {{301, 108}, -1},
      {{84, 205}, 1},  {{126, 221}, 1}, {{82, 205}, -1}, {{105, 228}, -1}, {{114, 306}, 2},
      {{116, 306}, 3}, {{101, 306}, 2}, {{129, 320}, 3}, {{91, 306}, 2},   {{145, 306}, 3},
  };
  expectHits(scene, taps);
}

TEST(ScenePart, IsWhatOnePictureHoldsAroundWhatIsSeen) {
  const struct {
    const char* what;
    layout::Size size;
    layout::Rect seen;
    double scale;
    layout::Rect part;
  } rows[] = {
      {"a row", {375, 60}, {{0, 30}, {375, 30}}, 2, {{0, 0}, {375, 60}}},
      {"just held", {375, 4096}, {{0, 4000}, {375, 96}}, 2, {{0, 0}, {375, 4096}}},
      {"at its top", {375, 20000}, {{0, 0}, {375, 600}}, 2, {{0, 0}, {375, 4096}}},
      {"in its middle", {375, 20000}, {{0, 10000}, {375, 600}}, 2, {{0, 8252}, {375, 4096}}},
      {"at its end", {375, 20000}, {{0, 19400}, {375, 600}}, 2, {{0, 15904}, {375, 4096}}},
      {"wide", {9000, 10}, {{5000.25, 0}, {100, 10}}, 1, {{808, 0}, {8192, 10}}},
      {"unseen", {375, 20000}, {}, 4, {{0, 0}, {375, 2048}}},
  };
  for (const auto& row : rows) {
    EXPECT_EQ(render::partToPaint(row.size, row.seen, row.scale), row.part) << row.what;
  }
}

TEST(SheetGeometry, KeepsWhatFillsThePanelInItsRoundCorners) {
  const Rect panel{{10, 100}, {200, 300}};
  const struct {
    Rect frame;
    double fill, embed;  ///< radius of the upper corners
  } rows[] = {
      {panel, 12, 12},
      {{{0, 100}, {220, 10}}, 12, 12},
      {{{10, 104}, {200, 100}}, 0, 8},
      {{{22, 100}, {176, 100}}, 0, 0},
      {{{21, 100}, {100, 100}}, 0, 12},
      {{{10, 0}, {200, 50}}, 0, 0},
  };
  for (const auto& row : rows) {
    Scene scene;
    scene.items = {fill(row.frame), embed(row.frame)};
    SheetGeometry::roundTop(scene, panel);
    EXPECT_EQ(std::get<FillItem>(scene.items[0]).topCornerRadius, row.fill) << row.frame.top();
    EXPECT_EQ(std::get<EmbedItem>(scene.items[1]).topCornerRadius, row.embed) << row.frame.top();
  }
}

}  // namespace
}  // namespace quorix::hosting
