#include <sstream>

#include "platform/hosting/EmbeddedPages.h"
#include "platform/hosting/SheetPanel.h"
#include "platform/hosting/SheetPictures.h"
#include "platform/hosting/ViewportMotion.h"
#include "tests/core/TestWindow.h"
#include "tests/core/Vectors.h"
#include "tests/web/PageRow.h"

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

/// For each layer: the number of its items, its origin and size.
std::string told(const Scene& scene, double scale) {
  std::ostringstream all;
  for (const SceneLayer& layer : layersOf(scene, ground, scale)) {
    all << (all.tellp() > 0 ? " | " : "") << layer.scene.items.size() << " at " << layer.origin.x
        << "," << layer.origin.y << " " << layer.scene.size.width << "x" << layer.scene.size.height;
  }
  return all.str();
}

render::Item itemOf(const std::string& kind, Rect frame) {
  EmbedItem page = embed(frame);
  if (kind == "embed") return page;
  if (kind == "fill") return fill(frame);
  if (kind == "text") return render::TextItem{frame, {}};
  if (kind == "clip") return render::ClipItem{frame};
  if (kind == "panel") return FillItem{frame, ground, 12};
  if (kind == "empty") page.content = nullptr;
  if (kind == "page") page.background = ground;
  if (kind == "page") page.topCornerRadius = 12;
  return page;
}

TEST(SceneLayers, AreCutWhereSomethingPaintsItself) {
  forEachRow("layout/layers", [](simdjson::dom::element row) {
    Scene scene;
    scene.size = {100, 200};
    for (const simdjson::dom::element item : row["items"]) {
      scene.items.push_back(itemOf(::text(item, "kind"), rect(item["frame"])));
    }
    EXPECT_EQ(told(scene, row["scale"]), ::text(row, "layers"));
  });
}

TEST(SheetPictures, ArePaintedOnlyWhenTheyChange) {
  /// Writes "number WIDTHxHEIGHT" when it paints, and its number and top when it moves.
  struct Slip final : ScenePicture {
    Slip(int index, std::ostringstream& all) : number(index), to(all) {}
    ~Slip() override { to << "no " << number << ", "; }
    void show(const Scene& scene, double) override {
      to << number << ' ' << scene.size.width << 'x' << scene.size.height << ", ";
    }
    void moveTo(layout::Point corner) override { to << number << " at " << corner.y << ", "; }
    int number;
    std::ostringstream& to;
  };
  const swiftui::State<bool> shown{true};
  const auto words = [&] {
    return swiftui::Presentation{shown.binding(), swiftui::Text::verbatim("Words")};
  };
  const auto page = [&] {
    const auto content = std::make_shared<webkit::WebContent>();
    return swiftui::Presentation{
        shown.binding(), swiftui::represented({"Page", [content] {
                                                 return std::make_shared<testing::PageContent>(
                                                     content, [] {});
                                               }})};
  };
  testing::TestSheet on(words(), {320, 640}, {});
  std::ostringstream log;
  SheetPictures pictures([&](int index) { return std::make_unique<Slip>(index, log); });
  std::optional<Rect> ring;
  const struct {
    const char* what;
    std::function<void()> change;
    const char* log;
  } rows[] = {
      {"words", [] {}, "0 320x348, 0 at 10, "},
      {"a ring",
       [&] {
         ring = Rect{{20, 400.25}, {40, 20}};
       },
       "0 at 10, 1 48x28, 1 at 396.5, "},
      {"nothing", [] {}, "0 at 10, 1 at 396.5, "},
      {"a drag",
       [&] {
         on.sheet.pointerPressed({9, 600}), on.sheet.pointerMoved({9, 640}), ring->origin.y += 32;
       },
       "0 at 42, 1 at 428.5, "},
      {"a page, below the ring", [&] { on.sheet.present(page()); },
       "no 1, 0 320x630, 1 48x48, 0 at 42, 1 at 82, 2 48x28, 2 at 428.5, "},
      {"covered at the top", [&] { pictures.hideTop(12); },
       "0 320x618, 1 48x48, 0 at 54, 1 at 82, 2 at 428.5, "},
      {"lost", [&] { pictures.paintAgain(); },
       "0 320x618, 1 48x48, 0 at 54, 1 at 82, 2 48x28, 2 at 428.5, "},
      {"words again", [&] { on.sheet.present(words()), ring.reset(); },
       "no 1, 0 320x336, 0 at 54, no 2, "},
  };
  for (const auto& [what, change, expected] : rows) {
    change();
    on.sheet.advance(0);
    log.str("");
    pictures.follow(on.sheet, ring, 2);
    EXPECT_EQ(log.str(), expected) << what;
  }
  const Rect panel = on.sheet.panelFrame();
  EXPECT_EQ(pictures.ground().below.bottom(), panel.bottom());
}

/// The index of the hit area at `point`; -1 if there is none, or an embed takes the tap.
std::ptrdiff_t areaAt(const Scene& scene, layout::Point point) {
  const render::HitArea* hit = scene.hitTest(point);
  return hit ? hit - scene.hitAreas.data() : -1;
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
  const std::pair<layout::Point, int> taps[] = {
      {{10, 10}, 0},  {{60, 55}, 1},   {{60, 62}, 1},   {{60, 66}, -1},
      {{140, 66}, 2}, {{140, 75}, -1}, {{60, 119}, -1}, {{60, 121}, 1},
  };
  for (const auto& [at, area] : taps) EXPECT_EQ(areaAt(scene, at), area) << at.x << ',' << at.y;
}

TEST(Scene, LeavesEachAreaRoomToTap) {
  Scene scene;
  forEachRow("layout/tap_room", [&](simdjson::dom::element row) {
    scene.hitAreas.push_back({rect(row["area"]), {}});
  });
  std::ptrdiff_t area = 0;
  forEachRow("layout/tap_room", [&](simdjson::dom::element row) {
    for (const auto at : row["inside"]) EXPECT_EQ(areaAt(scene, point(at)), area) << at;
    for (const auto at : row["outside"]) EXPECT_EQ(areaAt(scene, point(at)), -1) << at;
    ++area;
  });
}

TEST(ScenePart, IsWhatOnePictureHoldsAroundWhatIsSeen) {
  forEachRow("layout/parts", [](simdjson::dom::element row) {
    const layout::Size size{row["size"].at(0), row["size"].at(1)};
    EXPECT_EQ(render::partToPaint(size, rect(row["seen"]), row["scale"]), rect(row["part"]));
  });
}

TEST(SheetGeometry, KeepsWhatFillsThePanelInItsRoundCorners) {
  forEachRow("layout/corners", [](simdjson::dom::element row) {
    const Rect frame = rect(row["frame"]);
    Scene scene;
    scene.items = {fill(frame), embed(frame)};
    SheetGeometry::roundTop(scene, {{10, 100}, {200, 300}});
    EXPECT_EQ(std::get<FillItem>(scene.items[0]).topCornerRadius, double(row["fill"]));
    EXPECT_EQ(std::get<EmbedItem>(scene.items[1]).topCornerRadius, double(row["embed"]));
  });
}

TEST(PagePlace, ReachesTheTopOnlyBetweenTheCornersAndWhereThePageCanBeCut) {
  forEachRow("layout/page_places", [](simdjson::dom::element row) {
    const Rect panel{{}, {360, 400}};
    const auto opacity = static_cast<std::uint8_t>(std::int64_t(row["opacity"]));
    Scene scene;
    scene.size = panel.size;
    scene.items = {EmbedItem{rect(row["frame"]), {}, {0, 0, 0, opacity}}};
    SheetGeometry::roundTop(scene, panel);
    const auto place =
        PagePlace::of(std::get<EmbedItem>(scene.items.front()), scene, row["scale"], row["clips"]);
    EXPECT_DOUBLE_EQ(place.room.top(), row["top"]);
    EXPECT_DOUBLE_EQ(place.room.bottom(), 400);
    EXPECT_DOUBLE_EQ(place.strip, row["strip"]);
    EXPECT_EQ(place.radius, double(row["radius"]));
    EXPECT_EQ(place.isAtTop, bool(row["isAtTop"]));
  });
}

TEST(ViewportMotion, ConcernsTheEdgesOfAListThatScrollsByWholePixels) {
  forEachRow("layout/viewport", [](simdjson::dom::element row) {
    ViewportMotion motion;
    for (const auto& parent : {row["from"], row["to"]}) {  // its origin in a window of 300 by 100
      std::optional<layout::Point> origin;
      if (!parent.is_null()) origin = {parent.at(0), parent.at(1)};
      const layout::Point corner = origin.value_or(layout::Point{});
      motion.move({{-corner.x, -corner.y}, {300, 100}}, origin, 2);
    }
    EXPECT_EQ(motion.concerns({{0, row["top"]}, {100, 20}}, row["isNew"]),
              bool(row["isConcerned"]));
  });
}

}  // namespace
}  // namespace quorix::hosting
