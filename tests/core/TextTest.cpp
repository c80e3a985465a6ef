#include <algorithm>

#include "QuorixWidgets/info/InfoWidgetViewModel.h"
#include "platform/render/Scene.h"
#include "platform/swiftui/Elements.h"
#include "platform/swiftui/UIViewRepresentable.h"
#include "platform/text/TextAnalysis.h"
#include "platform/text/TextBound.h"
#include "platform/uikit/UILabel.h"
#include "tests/core/Resources.h"
#include "tests/core/TestWindow.h"
#include "tests/core/Widgets.h"

namespace quorix {
namespace {

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

TEST(TextBound, CutsBetweenWhatAReaderTakesForCharacters) {
  const std::string acute = "\u0301";
  const std::string family = "👩\u200D👩\u200D👧";
  const struct {
    std::string text;
    std::size_t most;
    std::string shown;
  } rows[] = {
      {"", 4, ""},
      {"abcd", 4, "abcd"},
      {"abcde", 4, "abc…"},
      {"返品手数料", 12, "返品手…"},
      {"返品手数", 12, "返品手数"},
      {"abe" + acute + "d", 6, "ab…"},                     // not the letter without its accent
      {"a" + family + "b", 13, "a…"},                      // nor a part of a family
      {"🇩🇪🇫🇷🇪🇸", 12, "🇩🇪…"},                               // nor half a flag
      {"a\r\nb", 3, "a…"},                                 // nor half a line's end
      {repeated(acute, 9), 12, repeated(acute, 3) + "…"},  // which one letter has without an end
      {"a" + repeated(acute, 9), 10, "a" + acute + acute + "…"},
      {"\xFF\xFF\xFF\xFF\xFF", 12, "\xFF\xFF\xFF…"},
      {"abc", 1, "…"},
      {"abc", 0, "…"},
  };
  for (const auto& row : rows) EXPECT_EQ(text::bounded(row.text, row.most), row.shown);
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
  // A megabyte in each of the ways in which texts reach a widget.
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
      {"format", Text::localized("%@, %@", {endless, endless})},
      {"button", swiftui::Button([] {}, View(plain))},
      {"label", swiftui::hosting(label)},
  };
  for (const auto& source : sources) {
    SCOPED_TRACE(source.name);
    TestWindow window(source.view);
    const auto& row = window.shown().accessibility;
    ASSERT_FALSE(row.empty());
    window.tap(TestWindow::middle(row.front().frame));
    window.settle();
    EXPECT_EQ((window.sheet() != nullptr), &source == sources);  // the row's own
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

// Comparing character by character, as for the figure in it, is slow.
TEST(TextBound, AnEndlessTitleIsCutBeforeItIsSplit) {
  const auto table =
      testing::OtherResources::english("\"info-widget-title\" = \"" + repeated("a\u0301", 100'000) +
                                       " 20%\"; \"info-widget-title-number\" = \"20%\";");
  std::size_t shown = 0;
  for (const InfoTitlePart& part : infoTitle("en")) shown += characters(part.text);
  EXPECT_LE(shown, text::mostOfText + std::string("20%").size());
}

constexpr auto ltr = layout::LayoutDirection::leftToRight;
constexpr auto rtl = layout::LayoutDirection::rightToLeft;

TEST(BaseDirection, FollowsTheLettersAndNotThePage) {
  const struct {
    const char* words;
    layout::LayoutDirection onLeftToRightPage, onRightToLeftPage;
  } rows[] = {
      {"", ltr, ltr},
      {"1.234,00\u00A0€", ltr, ltr},
      {"18 %", ltr, ltr},
      {"Su tarifa (18 %).", ltr, ltr},
      {"\u200F١٬٢٣٤٫٠٠\u00A0€", rtl, rtl},  // a mark says so
      {"18 رسوم", rtl, rtl},
      {"Quorix رسوم", ltr, rtl},
      {"רסום Quorix", rtl, rtl},
      {"\xFF\xFE", ltr, ltr},  // not UTF-8
  };
  for (const auto& row : rows) {
    const std::vector<text::Run> runs = {{row.words, {}, {}}};
    EXPECT_EQ(text::baseDirection({runs, ltr}), row.onLeftToRightPage) << row.words;
    EXPECT_EQ(text::baseDirection({runs, rtl}), row.onRightToLeftPage) << row.words;
  }
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

}  // namespace
}  // namespace quorix
