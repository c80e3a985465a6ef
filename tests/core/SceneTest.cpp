#include <array>
#include <sstream>
#include <tuple>

#include "platform/hosting/EmbeddedPages.h"
#include "platform/hosting/ScrolledViews.h"
#include "platform/hosting/SheetPanel.h"
#include "platform/hosting/SheetPictures.h"
#include "platform/render/RoundedTop.h"
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

TEST(RoundedTop, ShowsEachPixelOnceAndIsSmoothAtTheCurve) {
  // A digit for each pixel.
  const std::tuple<int, int, double, std::string> rows[] = {
      {12, 5, 4, "026888888620/288888888882/688888888886/888888888888/888888888888/"},
      {7, 3, 2.5, "1688861/6888886/8888888/"},
      {8, 2, 4, "02688620/28888882/"},
      {4, 2, 0, "8888/8888/"},
  };
  for (const auto& [width, height, radius, expected] : rows) {
    std::string shown(std::size_t((width + 1) * height), '/');
    const auto levels = render::roundedTop(width, height, radius);
    for (std::size_t level = 0; level < levels.size(); ++level) {
      for (const Rect& part : levels[level]) {
        for (double y = part.top(); y < part.bottom(); ++y) {
          for (double x = part.left(); x < part.right(); ++x) {
            char& pixel = shown.at(std::size_t(y * (width + 1) + x));
            pixel = pixel == '/' ? char('0' + level) : 'x';
          }
        }
      }
    }
    EXPECT_EQ(shown, expected) << radius;
  }
}

/// A view whose parent is known by its origin in a window of 300 by 100.
struct Row : ScrolledViews<std::optional<layout::Point>>::View {
  using View::enter;
  layout::Rect bounds;
  int checks = 0;

 private:
  layout::Rect boundsInParent() const override { return bounds; }
  void placeMayHaveChanged() override { ++checks; }
};

TEST(ScrolledViews, ChecksTheEdgesOfAListThatScrollsByWholePixels) {
  forEachRow("layout/viewport", [](simdjson::dom::element row) {
    ScrolledViews<std::optional<layout::Point>> views;
    const std::optional<layout::Point> still = layout::Point{};
    std::optional<layout::Point> parent;
    std::array<Row, 40> others;  // some of which each frame checks
    Row view;
    for (Row& other : others) other.enter(views, still);
    view.enter(views, parent);
    EXPECT_EQ(view.checks, 1) << "a new one at once";
    view.bounds = {{0, row["top"]}, {100, 20}};
    const auto checksIn = [&](simdjson::dom::element origin) {
      parent.reset();
      if (!origin.is_null()) parent = {origin.at(0), origin.at(1)};
      view.checks = 0;
      views.frame(2, [](const std::optional<layout::Point>& in) -> ViewportPlace {
        const layout::Point corner = in.value_or(layout::Point{});
        return {{{-corner.x, -corner.y}, {300, 100}}, in};
      });
      return view.checks;
    };
    checksIn(row["from"]);
    EXPECT_EQ(checksIn(row["to"]), row["isConcerned"] ? 1 : 0);
    EXPECT_EQ(checksIn(row["to"]), 0) << "at rest";
  });
}

TEST(PicturePart, IsPaintedAgainOnceTheViewShowsAnother) {
  PicturePart part;
  const layout::Size size{375, 20'000};
  forEachRow("layout/picture_parts", [&](simdjson::dom::element row) {
    const double top = row["top"];
    const ViewportPlace place{{{0, -top}, {375, 600}}, {{0, top}}};
    EXPECT_EQ(part.follow(place, size, 2), bool(row["needsFrame"]));
    EXPECT_EQ(part.isInSight(), bool(row["isInSight"]));
    EXPECT_EQ(part.offset().y, double(row["offset"]));
    if (part.isInSight()) part.takeStale();
    EXPECT_EQ(part.painted().top(), double(row["painted"]));
  });
}

}  // namespace
}  // namespace quorix::hosting
