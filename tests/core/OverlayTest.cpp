#include "QuorixWidgets/overlay/WebView.h"
#include "QuorixWidgets/overlay/WebViewController.h"
#include "platform/swiftui/UIViewRepresentable.h"
#include "tests/core/OpenedAddresses.h"
#include "tests/core/TestWindow.h"

namespace quorix {
namespace {

using swiftui::State;
using testing::TestWindow;

/// The page in `scene`.
render::EmbedItem shownPage(const render::Scene& scene) {
  return testing::itemsOf<render::EmbedItem>(scene).at(0);
}

const webkit::WebContent& shownContent(const render::Scene& scene) {
  return dynamic_cast<const webkit::WebContent&>(*shownPage(scene).content);
}

WebView overlay(const State<bool>& shown, std::optional<std::string> name, const char* locale) {
  return {shown.binding(), std::move(name), std::nullopt, locale};
}

TEST(WebView, FillsItsSheetToTheRoundCornersAndTheBottom) {
  const State<bool> shown{true};
  testing::TestSheet alone({shown.binding(), overlay(shown, std::nullopt, "en")}, {320, 640},
                           {40, 5, 30, 10});
  auto& sheet = alone.sheet;
  const layout::Rect panel{{0, 50}, {320, 590}};
  EXPECT_EQ(shownPage(sheet.scene()).frame, (layout::Rect{{5, 50}, {305, 590}}));
  EXPECT_EQ(shownPage(sheet.scene()).topCornerRadius, 12);
  int fills = 0;
  for (const auto& fill : testing::itemsOf<render::FillItem>(sheet.scene())) {
    fills += fill.frame == panel && fill.topCornerRadius == 12;
  }
  EXPECT_EQ(fills, 2) << "the panel's and the overlay's, which ignores what the device covers";
  sheet.moveFocus(true);
  EXPECT_EQ(sheet.ringFrame(), (layout::Rect{{262, 58}, {48, 48}})) << "the cross's, in the panel";
}

TEST(WebView, ClosesByACrossInTheUsersLanguageAndNotThePages) {
  const State<bool> shown{true};
  TestWindow window(overlay(shown, "Ann", "en"), {.language = "de"});
  EXPECT_EQ(window.element("Schließen").role, render::Role::button);
  EXPECT_EQ(window.element("Schließen").frame, (layout::Rect{{272, 0}, {48, 56}}));
  for (const bool open : {false, true}) {
    window.act("Schließen");
    EXPECT_EQ(shown.get(), open) << "a toggle";
  }
}

TEST(WebView, LaterValuesReachTheHeadingAndNotThePage) {
  const State<bool> shown{true};
  TestWindow window(overlay(shown, "Ann", "en"));
  const webkit::WebContent* const content = &shownContent(window.shown());
  const std::string address = content->url()->absoluteString();
  EXPECT_NE(address.find("lang=en"), std::string::npos) << address;
  window.host->updateRoot(overlay(shown, "Ann", "sv"));
  window.settle();
  EXPECT_NO_THROW(window.element("Dina returer, Ann"));
  EXPECT_EQ(&shownContent(window.shown()), content);
  EXPECT_EQ(content->url()->absoluteString(), address);
}

TEST(WebViewController, ShowsItsPageAndCloseControl) {
  const auto overlay = std::make_shared<WebViewController>();
  overlay->locale = "nb";
  overlay->token = "";
  overlay->showCloseButton = true;
  TestWindow window(swiftui::hosting(overlay), {.direction = layout::LayoutDirection::rightToLeft,
                                                .language = {}});  // the control stays on the right
  EXPECT_EQ(render::printFrames(window.shown()),
            "embed 0 0 320 640 #FFFFFFFF\n"
            "image 284 22 24 24 \"close\" #007AFFFF\n"
            "hit 272 10 48 48\n");
  const webkit::WebContent& page = shownContent(window.shown());
  EXPECT_EQ(page.url().value().absoluteString(),
            "https://widget.quorix.example/users/details/?lang=no");
  EXPECT_EQ(page.request()->timeoutInterval, std::chrono::seconds(60));
  EXPECT_TRUE(page.settings.allowsContentJavaScript);
  EXPECT_TRUE(page.settings.javaScriptCanOpenWindowsAutomatically);
  EXPECT_TRUE(page.settings.allowsBackForwardNavigationGestures);

  // Changes after the view was loaded have no effect.
  overlay->token = std::nullopt;
  window.host->updateRoot(swiftui::hosting(overlay));
  EXPECT_EQ(shownContent(window.shown()).url()->path(), "/users/details/");

  const auto root = std::make_shared<uikit::UIViewController>();
  root->present(overlay, true);
  window.tap(layout::Point{272, 10});  // the corner of the control
  window.settle();
  EXPECT_EQ(root->presentedViewController(), nullptr);
}

TEST(WebViewController, ItsPageRunsUnderWhatTheDeviceCovers) {
  const auto overlay = std::make_shared<WebViewController>();
  testing::TestSheet alone(hosting::controllerPresentation(overlay), {320, 640}, {40, 5, 30, 10});
  EXPECT_EQ(shownPage(alone.sheet.scene()).frame, (layout::Rect{{0, 50}, {320, 590}}));
}

TEST(WebViewController, IsMadeInThreeWays) {
  const auto bundle = foundation::Bundle::embedded();
  const auto plain = std::make_shared<WebViewController>();
  const auto named = std::make_shared<WebViewController>("Page", bundle);
  EXPECT_EQ(plain->nibName(), std::nullopt);
  EXPECT_EQ(named->nibName(), "Page");
  EXPECT_EQ(named->nibBundle(), bundle);
  for (const auto& overlay : {plain, named, WebViewController::initWithCoder()}) {
    EXPECT_FALSE(overlay->token || overlay->userName || overlay->locale);
    TestWindow window(swiftui::hosting(overlay));
    EXPECT_EQ(render::printFrames(window.shown()), "embed 0 0 320 640 #FFFFFFFF\n");
    EXPECT_EQ(shownContent(window.shown()).url().value().absoluteString(),
              "https://modules.quorix.example/html/overlays/info?lang");
  }
}

TEST(WebViewController, NewWindowsLeaveTheApp) {
  const testing::OpenedAddresses opened;
  auto overlay = std::make_shared<WebViewController>();
  const auto web =
      std::dynamic_pointer_cast<webkit::WKWebView>(overlay->view()->subviews().front());
  const auto page = web->content();
  page->askForWindow(foundation::URL::parse("https://shop.example/terms"), true);
  page->askForWindow(foundation::URL::parse("file:///etc/passwd"), true);
  page->askForWindow(std::nullopt, true);
  EXPECT_EQ(opened.list(), std::vector<std::string>{"https://shop.example/terms"});

  // The engine may keep the page longer than its controller. Requests of the page then have no
  // effect.
  const std::weak_ptr<WebViewController> watched = overlay;
  overlay.reset();
  EXPECT_TRUE(watched.expired()) << "the web view keeps nobody";
  page->askForWindow(foundation::URL::parse("https://shop.example/late"), true);
  page->processEnded();
  EXPECT_EQ(opened.list().size(), 1u);
}

TEST(WebViewController, SaysThatAPageEndedAndLoadsItAgain) {
  const struct {
    const char* locale;
    layout::LayoutDirection direction;
    const char* said;
    const char* button;
  } rows[] = {
      {"sv", layout::LayoutDirection::leftToRight, "Sidan kan inte visas just nu.", "Försök igen"},
      {"ar", layout::LayoutDirection::rightToLeft, "يتعذّر عرض هذه الصفحة حاليًا.", "إعادة المحاولة"},
  };
  for (const auto& row : rows) {
    const auto overlay = std::make_shared<WebViewController>();
    overlay->locale = row.locale;
    overlay->showCloseButton = true;
    TestWindow window(swiftui::hosting(overlay), {.direction = row.direction, .language = "en"});
    const auto web =
        std::dynamic_pointer_cast<webkit::WKWebView>(overlay->view()->subviews().front());
    int loads = 0;
    web->content()->attach([&](const auto&) { ++loads; });
    EXPECT_EQ(window.labels(), "Close");
    for (int round = 1; round <= 2; ++round) {
      web->content()->processEnded();
      web->content()->processEnded();
      window.settle();
      EXPECT_THROW(shownContent(window.shown()), std::out_of_range) << "the page is taken away";
      EXPECT_EQ(window.labels(), std::string(row.said) + ", " + row.button + ", Close");
      EXPECT_EQ(window.element(row.button).role, render::Role::button);
      const bool mirrored = row.direction == layout::LayoutDirection::rightToLeft;
      const layout::Rect button = window.element(row.button).frame;
      EXPECT_EQ(mirrored ? 320 - button.right() : button.left(), 44);
      window.act(row.button);
      EXPECT_EQ(window.labels(), "Close");
      EXPECT_EQ(&shownContent(window.shown()), web->content().get());
      EXPECT_EQ(loads, 1 + round);
    }
  }
}

}  // namespace
}  // namespace quorix
