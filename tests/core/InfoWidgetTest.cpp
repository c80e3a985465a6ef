#include "QuorixWidgets/info/InfoWidgetBuilder.h"
#include "QuorixWidgets/localization/Assets.h"
#include "platform/swiftui/TreePrinter.h"
#include "tests/core/Resources.h"
#include "tests/core/TestWindow.h"
#include "tests/core/Vectors.h"
#include "tests/core/Widgets.h"

namespace quorix {
namespace {

using testing::infoModel;
using testing::OtherResources;
using testing::TestWindow;

const std::string title =
    "Shoppers who return less than 20% of what they buy pay a lower return fee.";
const std::string link = "Read more";
const SwiftUIStyleConfiguration bordered{std::nullopt, std::nullopt, std::nullopt, true};

// View model.

TEST(InfoWidgetViewModel, TellsOfTheShoppersReturnsByBands) {
  const auto words =
      OtherResources::english(R"("widget-title-start" = "Start "; "widget-title-end" = " end";
                                  "widget-title-return-rate-low" = "low %g ";
                                  "widget-title-return-rate-medium" = "medium %g ";
                                  "widget-title-return-rate-high" = "high %g ";
                                  "widget-read-more" = "more";)");
  forEachRow("info/bands", [](simdjson::dom::element row) {
    const auto model = infoModel("en", {}, double(row["percentile"]));
    EXPECT_EQ(model->getTitle()->resolved(), ::text(row, "title"));
  });
  EXPECT_FALSE(infoModel()->getTitle());
}

TEST(InfoWidgetViewModel, ATitleWithoutPiecesStopsTheProcess) {
  const auto evaluate = [](const std::string& table) {
    const auto words = OtherResources::english(table);
    infoModel()->getInfoTitle();
  };
  const std::string number = R"("info-widget-title-number" = "20%"; "info-widget-title" = )";
  for (const char* text : {"\"\";", "\"20%\";", "\"20%20%\";"}) {
    EXPECT_DEATH(evaluate(number + text), "Index out of range") << text;
  }
  EXPECT_DEATH((OtherResources(nullptr), infoModel()->getInfoTitle()), "Index out of range");
}

// Trees.

TEST(InfoWidgetView, IsTheTreeExpected) {
  const struct {
    const char* file;
    std::shared_ptr<InfoWidgetViewModel> model;
  } rows[] = {
      {"general-en.txt", infoModel()},
      {"border-ar.txt", infoModel("ar", bordered)},
      {"personal-es.txt",
       infoModel("es", {"Host-Regular", "Host-Bold", swiftui::Color::white(), false}, 12, "Ann")},
  };
  for (const auto& row : rows) {
    EXPECT_EQ(swiftui::printTree(InfoWidgetView{row.model}),
              contentsOf(std::string("info/") + row.file))
        << row.file;
  }
}

TEST(InfoWidgetView, WithoutItsLogoOrItsTextsItStillStands) {
  infoModel()->getInfoTitle();  // registers the faces before their files are removed
  const auto nothing = OtherResources::english("");
  TestWindow window(InfoWidgetView{infoModel()}, {}, {420, 100});
  EXPECT_TRUE(testing::itemsOf<render::ImageItem>(window.shown()).empty());
  EXPECT_NO_THROW(window.element("info-widget-title-numberinfo-widget-title"));
  EXPECT_NO_THROW(window.element("widget-read-more"));
}

TEST(InfoWidgetBuilder, CarriesTheStyleIntoTheDeclarativeWidgetAlone) {
  const InfoWidgetStyle style{"Host-Regular", "Host-Bold", swiftui::Color::fixed({1, 2, 3}), true};
  EXPECT_EQ(swiftui::printTree(InfoWidgetBuilder::buildSwiftUIInfoWidgetView("en", style)),
            swiftui::printTree(InfoWidgetView{infoModel(
                "en", {"Host-Regular", "Host-Bold", swiftui::Color::fixed({1, 2, 3}), true})}));
  const auto widget = InfoWidgetBuilder::buildUIKitInfoWidgetView("en", style);
  const auto& content = *widget->subviews().at(0);
  EXPECT_EQ(content.backgroundColor()->name(), "Background");
  EXPECT_EQ(content.layer().borderWidth(), 0);
}

// On screen. The widget is as wide as the window and less high.

TEST(InfoWidgetView, OpensItsPageFromAnywhereOnItAndFromEachTextThatIsRead) {
  TestWindow window(InfoWidgetView{infoModel("en", bordered)});
  EXPECT_EQ(window.labels(), title + ", " + link) << "the logo says nothing";
  const auto area = window.shown().hitAreas.at(0).frame;
  EXPECT_EQ(area.size.width, 320) << "border and padding are part of it";
  const layout::Point first{area.left() + 1, area.top() + 1};
  const layout::Point last{area.right() - 1, area.bottom() - 1};
  const std::function<void()> ways[] = {
      [&] { window.tap(first); },
      [&] { window.tap(last); },
      [&] { window.tap(link); },
      [&] { EXPECT_TRUE(window.host->activate(0)); },
      [&] { EXPECT_TRUE(window.host->activate(1)); },
  };
  for (const auto& open : ways) {
    open();
    window.settle();
    ASSERT_TRUE(window.sheet());
    window.act("Close");
    ASSERT_FALSE(window.sheet());
  }
}

TEST(InfoWidgetView, ASecondTapBeforeTheSheetIsUpTakesTheFirstBack) {
  TestWindow window(InfoWidgetView{infoModel()});
  window.tap(link);
  window.act(link);
  EXPECT_FALSE(window.sheet());
  window.act(link);
  EXPECT_TRUE(window.sheet());
}

}  // namespace
}  // namespace quorix
