#include <algorithm>

#include "platform/swiftui/UIViewRepresentable.h"
#include "platform/text/TextAnalysis.h"
#include "platform/text/TextBound.h"
#include "platform/uikit/UILabel.h"
#include "tests/core/Resources.h"
#include "tests/core/TestWindow.h"
#include "tests/core/Vectors.h"
#include "tests/core/Widgets.h"

namespace quorix {
namespace {

using swiftui::ContentSizeCategory;
using swiftui::Font;
using swiftui::Text;
using swiftui::View;
using testing::TestWindow;

std::string repeated(const std::string& text, std::size_t times) {
  std::string result;
  while (times-- > 0) result += text;
  return result;
}

std::size_t characters(const std::string& utf8) {
  return static_cast<std::size_t>(
      std::count_if(utf8.begin(), utf8.end(), [](char c) { return (c & 0xC0) != 0x80; }));
}

// Keeps a letter and its accent together, and a family; cuts between a letter's many accents.
TEST(TextBound, CutsBetweenWhatAReaderTakesForCharacters) {
  forEachRow("text_bounds", [](simdjson::dom::element row) {
    EXPECT_EQ(text::bounded(withBytes(::text(row, "text")), std::uint64_t(row["most"])),
              withBytes(::text(row, "shown")));
  });
}

TEST(TextBound, CountsAllRunsOfATextTogether) {
  constexpr std::size_t half = text::mostOfText / 2;
  const std::string a = repeated("a", half);
  const struct {
    std::vector<std::string> runs, shown;
  } rows[] = {
      {{a, a}, {a, a}},
      {{a, "ä" + a, "c"}, {a, "ä" + repeated("a", half - 2) + "…"}},
      {{a, a, "c"}, {a, repeated("a", half - 1) + "…"}},
  };
  for (const auto& row : rows) {
    text::AttributedText text;
    for (const std::string& run : row.runs) text.runs.emplace_back().text = run;
    text::bound(text);
    std::vector<std::string> shown;
    for (const text::Run& run : text.runs) shown.push_back(run.text);
    EXPECT_EQ(shown, row.shown);
  }
}

TEST(TextBound, NoTextReachesShapingOrAReaderWhole) {
  // A megabyte through each of the ways by which texts reach a widget.
  const std::string endless = repeated("fee ", 250'000);
  const auto strings = LocalizationRepository::make("en");
  auto entries = strings->strings.get()->entries();
  for (auto& entry : entries) entry.text = endless;
  strings->strings = TranslationTable::make(entries);
  const Text plain = Text::verbatim(endless);
  const auto label = std::make_shared<uikit::UILabel>();
  label->setAttributedText(uikit::NSAttributedString(endless));
  const struct {
    const char* name;
    View view;
  } sources[] = {
      {"translations", ScoreWidgetView{testing::scoreModel(true), strings}},
      {"parts", plain + plain + plain},
      {"cased",
       View(Text::verbatim(repeated("ß", 500'000))).textCase(swiftui::TextCase::uppercase)},
      {"label", swiftui::hosting(label)},
  };
  for (const auto& source : sources) {
    SCOPED_TRACE(source.name);
    TestWindow window(source.view);
    const auto& row = window.shown().accessibility;
    ASSERT_FALSE(row.empty());
    window.tap(TestWindow::middle(row.front().frame));
    window.settle();
    EXPECT_EQ((window.sheet() != nullptr), &source == sources);  // only for the row's own texts
    EXPECT_FALSE(window.text.calls.empty());
    for (const auto& call : window.text.calls) {
      EXPECT_LE(characters(call.words), text::mostOfText);
    }
    for (const auto& element : window.shown().accessibility) {
      EXPECT_LE(characters(element.label), text::mostOfText);
      EXPECT_LE(characters(element.hint), text::mostOfText);
    }
  }
}

// Comparing character by character, as in the search for the figure, is slow.
TEST(TextBound, AnEndlessTitleIsCutBeforeItIsSplit) {
  const auto table =
      testing::OtherResources::english("\"info-widget-title\" = \"" + repeated("a\u0301", 100'000) +
                                       " 20%\"; \"info-widget-title-number\" = \"20%\";");
  std::size_t shown = 0;
  for (const InfoTitlePart& part : infoTitle("en")) shown += characters(part.text);
  EXPECT_LE(shown, text::mostOfText + std::string("20%").size());
}

TEST(BaseDirection, FollowsTheLettersAndNotThePage) {
  forEachRow("text_directions", [](simdjson::dom::element row) {
    using enum layout::LayoutDirection;
    const std::vector<text::Run> runs = {{withBytes(::text(row, "text")), {}, {}}};
    for (const auto& [page, key] :
         {std::pair(leftToRight, "onLeftToRightPage"), {rightToLeft, "onRightToLeftPage"}}) {
      EXPECT_EQ(text::baseDirection({runs, page}) == rightToLeft, ::text(row, key) == "right")
          << key;
    }
  });
}

TEST(UnspacedWords, AreThoseOfScriptsWithoutBlanks) {
  std::u16string found;
  const std::u16string_view text = u"Quorix 返品手数料 €9";
  for (const text::WordRange& word : text::unspacedWords(text)) {
    found +=
        text.substr(static_cast<std::size_t>(word.start), static_cast<std::size_t>(word.length));
    found += u'|';
  }
  EXPECT_EQ(found, u"返品|手数料|");
  EXPECT_TRUE(text::unspacedWords(u"Rücksendegebühr 1.234,00\u00A0€").empty());
}

const auto last = ContentSizeCategory::accessibilityExtraExtraExtraLarge;

/// The font size that the text engine gets.
TEST(ContentSizeCategory, ReachesScalingFontsOnly) {
  const Font relative = Font::custom("F", 11, swiftui::TextStyle::caption2);
  const struct {
    Font font;
    ContentSizeCategory category;
    double points;
  } rows[] = {
      {Font::custom("F", Font::FixedSize{14}), last, 14},
      {Font::custom("F", 34), last, 106},  // like the body style: 53 of 17
      {relative, ContentSizeCategory::extraSmall, 11},
      {relative, last, 40},
      {Font(), ContentSizeCategory::extraLarge, 19},
  };
  for (const auto& row : rows) {
    swiftui::Environment environment;
    environment.textSize = row.category;
    TestWindow window(View(Text::verbatim("x")).font(row.font), environment);
    const auto& item = std::get<render::TextItem>(window.shown().items.at(0));
    EXPECT_DOUBLE_EQ(item.text.runs.at(0).font.points, row.points);
  }
}

TEST(ContentSizeCategory, IsTheOneNearestToADesktopsFactor) {
  forEachRow("text_factors", [](simdjson::dom::element row) {
    EXPECT_EQ(nameOf(swiftui::contentSizeCategoryFor(number(row, "factor"))),
              ::text(row, "category"));
  });
}

/// The runs that the text engine gets.
TEST(Text, ItsOwnLooksWinTheFirstOneWrittenFirst) {
  const auto face = [](const char* name) { return Font::custom(name, Font::FixedSize{10}); };
  const auto color = [](std::uint8_t red) { return swiftui::Color::fixed({red, 0, 0}); };
  const Text own = Text::verbatim("own ").font(face("A")).font(face("B")).foregroundColor(color(1));
  const Text bold = Text::verbatim("bold ").bold().fontWeight(swiftui::FontWeight::medium);
  const Text sum = (own.underline(false) + bold + Text::localized("%@", {"plain"}))
                       .font(face("C"))
                       .foregroundColor(color(2))
                       .underline();
  const Text whole = sum + Text::verbatim("") + Text::verbatim(" last");
  TestWindow window(View(whole)
                        .font(face("D"))
                        .foregroundColor(color(3))
                        .textCase(swiftui::TextCase::uppercase)
                        .accessibilityLabel(Text::verbatim("ibis")),
                    {.language = "tr"});
  const auto run = [](const char* words, const char* name, swiftui::FontWeight weight,
                      std::uint8_t red, bool underline) {
    return text::Run{words, {name, 10, weight}, {red, 0, 0}, underline};
  };
  constexpr auto regular = swiftui::FontWeight::regular;
  const std::vector<text::Run> expected = {
      run("OWN ", "A", regular, 1, false), run("BOLD ", "C", swiftui::FontWeight::bold, 2, true),
      run("PLAİN", "C", regular, 2, true), run(" LAST", "D", regular, 3, false)};
  EXPECT_EQ(std::get<render::TextItem>(window.shown().items.at(0)).text.runs, expected);
  EXPECT_EQ(window.labels(), "ibis") << "what is read out stays as it is";
  const std::string json = render::framesToJSON(window.shown());
  EXPECT_NE(json.find(R"("strikethrough": false}, {"text": "BOLD ", "font": "C", "points": 10, )"
                      R"("weight": "bold", )"),
            std::string::npos)
      << json;
}

}  // namespace
}  // namespace quorix
