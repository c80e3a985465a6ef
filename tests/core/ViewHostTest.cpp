#include "platform/hosting/SheetPictures.h"
#include "platform/swiftui/UIViewRepresentable.h"
#include "tests/core/Resources.h"
#include "tests/core/TestWindow.h"
#include "tests/core/Vectors.h"
#include "tests/core/Widgets.h"
#include "tests/qt/FeeRow.h"

namespace quorix {
namespace {

using swiftui::Text;
using swiftui::View;
using testing::TestWindow;

/// A letter of `size` points that appends itself to `log` when it is tapped.
View key(std::string& log, const std::string& letter, double size) {
  return View(Text::verbatim(letter)).frame(size, size).onTapGesture([&log, letter] {
    log += letter;
  });
}

/// Grows once from 10 to 20 points, during a call of the host's: like a view that loads its content
/// when it is first used. Reports a change at each evaluation too, which changes nothing.
class LateContent final : public render::HostedContent {
 public:
  enum class When { measured, shown, told };
  explicit LateContent(When when) : when_(when) {}

  static View view(When when) {
    const auto content = std::make_shared<LateContent>(when);
    const View shown =
        swiftui::represented({"Late", [content] { return content; },
                              [content](render::HostedContent&) { content->tellChanged(); }});
    return shown.onGeometryChange([content](layout::Size) { content->grow(When::told); });
  }

  layout::Size sizeThatFits(layout::ProposedSize, text::TextEngine&, double) override {
    const layout::Size now = side_;
    grow(When::measured);
    return now;
  }
  render::Scene scene(layout::Size size, const render::Display&, text::TextEngine&) override {
    grow(When::shown);
    return {size, {}, {render::FillItem{{{}, size}, {9, 9, 9, 255}}}, {}, {}};
  }

 private:
  void grow(When now) {
    if (now == when_ && std::exchange(side_, grown) != grown) tellChanged();
  }

  static constexpr layout::Size grown{20, 20};
  When when_;
  layout::Size side_{10, 10};
};

double lastFill(const render::Scene& scene) {
  return testing::itemsOf<render::FillItem>(scene).back().frame.size.width;
}

struct FillPicture final : hosting::ScenePicture {
  explicit FillPicture(double& shown) : fill(shown) {}
  void show(const render::Scene& scene, double) override { fill = lastFill(scene); }
  void moveTo(layout::Point) override {}
  double& fill;
};

TEST(ViewHost, ContentMayChangeWhileItIsLaidOut) {
  using enum LateContent::When;
  const swiftui::State<bool> presented{true};
  for (const auto when : {measured, shown, told}) {
    const auto late = [&] { return LateContent::view(when); };
    SCOPED_TRACE(static_cast<int>(when));
    testing::FixedWidthText engine;
    hosting::ViewHost::Client client;
    hosting::ViewHost host(engine, client);
    host.setRoot(late());
    for (int i = 0; i < 2; ++i) {
      host.sizeThatFits({});
      host.scene({40, 40});
      host.presentation();
    }
    EXPECT_EQ(host.sizeThatFits({}), (layout::Size{20, 20}));
    EXPECT_EQ(lastFill(host.scene({40, 40})), 20);

    testing::TestSheet whole({presented.binding(), late()}, {320, 640}, {});
    whole.sheet.scene();
    EXPECT_EQ(lastFill(whole.sheet.scene()), 20);

    testing::TestSheet inPictures({presented.binding(), late()}, {320, 640}, {});
    double painted = 0;
    hosting::SheetPictures pictures([&](int) { return std::make_unique<FillPicture>(painted); });
    for (int i = 0; i < 2; ++i) pictures.follow(inPictures.sheet, {}, 1);
    EXPECT_EQ(painted, 20);
  }
}

struct Restless {
  static constexpr std::string_view typeName = "Restless";
  swiftui::State<int> turns{0};
  auto states() const { return std::tie(turns); }
  View body() const {
    const int turn = turns.get();
    if (turn < 100) turns.binding().set(turn + 1);
    return Text::verbatim(std::to_string(turn));
  }
};

TEST(ViewHost, AViewThatNeverRestsDoesNotStopTheHost) {
  TestWindow window(Restless{}, {}, {100, 20});
  window.host->settle();
  EXPECT_LT(std::stoi(window.labels()), 100);
}

TEST(ViewHostInput, ATapIsAPressAndAReleaseOnOneArea) {
  std::string log;
  // "a" is from 0 to 50, "b" from 50 to 100; "c" is over the middle of "a".
  const View keys =
      swiftui::HStack(layout::VerticalAlignment::top, 0,
                      {key(log, "a", 50).overlay({}, key(log, "c", 10)), key(log, "b", 50)});
  TestWindow window(keys, {}, {100, 50});
  forEachRow("gestures/taps", [&](simdjson::dom::element row) {
    log.clear();
    window.press(point(row["press"]));
    window.release(point(row["release"]));
    window.settle();
    EXPECT_EQ(log, ::text(row, "taps"));
  });
  log.clear();
  window.press({5, 5});
  window.front().pointerLost();
  window.release({5, 5});
  window.release({5, 5});
  window.settle();
  for (const int index : {-1, 3}) EXPECT_FALSE(window.host->activate(index)) << index;
  EXPECT_EQ(log, "");
}

TEST(ViewHostInput, ATapOrEnterWorksBetweenAnUpdateAndItsFrame) {
  for (const bool byKey : {false, true}) {
    const auto model = testing::scoreModel(false);
    const auto strings = LocalizationRepository::make("en");
    TestWindow window(ScoreWidgetView{model, strings});
    const auto middle = TestWindow::middle(window.element("Your return fee €4.00").frame);
    byKey ? window.key(hosting::Key::next) : window.press(middle);
    strings->strings = TranslationTable::make({{"returns", "title", "Fee"}});
    foundation::MainQueue::drain();
    EXPECT_TRUE(byKey ? window.key(hosting::Key::activate) : window.release(middle));
    window.settle();
    EXPECT_TRUE(window.sheet()) << byKey;
  }
}

TEST(ViewHostInput, FocusWalksOverWhatActsAndLeavesAtTheEnds) {
  std::string log;
  const View both = swiftui::VStack(layout::HorizontalAlignment::leading, 0,
                                    {Text::verbatim("words"), Text::verbatim("more")})
                        .onTapGesture([&] { log += 'a'; });
  const View keys = swiftui::HStack(layout::VerticalAlignment::top, 0,
                                    {both, Text::verbatim("x"), key(log, "b", 50)});
  TestWindow window(keys, {}, {200, 60});
  auto& host = *window.host;
  const auto frameOf = [&](const char* name) { return window.element(name).frame; };
  EXPECT_FALSE(host.activateFocus());
  for (const bool forward : {true, false}) {
    for (const bool first : {forward, !forward}) {
      EXPECT_TRUE(host.moveFocus(forward) && host.activateFocus());
      EXPECT_EQ(host.focusFrame(), frameOf(first ? "words" : "b"));
      EXPECT_EQ(host.ringFrame(), first ? united(frameOf("words"), frameOf("more")) : frameOf("b"));
    }
    EXPECT_FALSE(host.moveFocus(forward));
    EXPECT_FALSE(host.focusFrame());
  }
  EXPECT_EQ(log, "abba");
  EXPECT_EQ(host.focusStops(), 2) << "what one tap makes act is one";
  host.moveFocus(true);
  host.clearFocus();
  EXPECT_FALSE(host.activateFocus());
  for (const int index : {-1, 2, 4}) EXPECT_FALSE(host.activate(index)) << index;
}

TEST(ViewHosts, AreEvaluatedOnceOnAScreenAndSparinglyInLongLists) {
  testing::FixedWidthText engine;
  hosting::ViewHost::Client client;
  for (const int count : {10, 200}) {
    const auto bodies = std::make_shared<int>(0);
    std::vector<std::unique_ptr<hosting::ViewHost>> hosts;
    for (int i = 0; i < count; ++i) {
      hosts.push_back(std::make_unique<hosting::ViewHost>(engine, client));
      hosts.back()->setRoot(testing::Watched(std::to_string(i), bodies));
      hosts.back()->sizeThatFits({});
      hosts.back()->sizeThatFits({100, std::nullopt});
    }
    EXPECT_EQ(*bodies, count);
    for (int i = 0; i < count; ++i) {
      const auto& items = hosts[static_cast<std::size_t>(i)]->scene({100, 20}).items;
      ASSERT_EQ(items.size(), 1u);
      EXPECT_EQ(std::get<render::TextItem>(items.front()).text.runs.front().text,
                std::to_string(i));
    }
    EXPECT_LE(*bodies, count == 10 ? count : 2 * count);
  }
}

TEST(HostsStringTable, IsTheOneOfTheUsersLanguage) {
  const auto heard = [](const std::string& language) {
    return TestWindow(Text::localized("%@ %@", {"fee", "4"}), {.language = language}).labels();
  };
  foundation::Bundle::setMain(
      testing::memoryBundle({{"pt-BR.lproj/Localizable.strings", "\"%@ %@\" = \"br %2$@ %1$@\";"},
                             {"pt.lproj/Localizable.strings", "\"%@ %@\" = \"pt %2$@ %1$@\";"},
                             {"es.lproj/Localizable.strings", "other = x;"},
                             {"en.lproj/Localizable.strings", "\"%@ %@\" = \"en %2$@ %1$@\";"}}));
  for (const auto& [language, label] : std::map<std::string, std::string>{
           {"pt-BR", "br 4 fee"}, {"pt-PT", "pt 4 fee"}, {"es", "en 4 fee"}, {"", "en 4 fee"}}) {
    EXPECT_EQ(heard(language), label);
  }
  foundation::Bundle::setMain(
      testing::memoryBundle({{"Localizable.strings", "\"%@ %@\" = \"any %2$@ %1$@\";"}}));
  EXPECT_EQ(heard("es"), "any 4 fee");
  foundation::Bundle::setMain(nullptr);
  EXPECT_FALSE(foundation::Bundle::hasMain());
  EXPECT_EQ(heard("es"), "fee 4");
}

}  // namespace
}  // namespace quorix
