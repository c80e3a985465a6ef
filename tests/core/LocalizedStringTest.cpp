#include "QuorixWidgets/localization/LocalizedString.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <unistd.h>

#include <clocale>
#include <filesystem>
#include <fstream>

#include "QuorixWidgets/localization/ResourceBundle.h"
#include "QuorixWidgets/localization/StringTableProblem.h"
#include "platform/foundation/StringsFile.h"
#include "tests/core/MemoryBundle.h"

namespace quorix {
namespace {

using foundation::Bundle;
using foundation::StringTable;

class LocalizedString : public ::testing::Test {
 protected:
  void TearDown() override {
    Bundle::registerBundle(kResourceBundleIdentifier, Bundle::embedded());
  }

  static void useBundle(Bundle::Ref bundle) {
    libraryBundle();  // whose first call would put the embedded files in its place
    Bundle::registerBundle(kResourceBundleIdentifier, std::move(bundle));
  }
};

TEST_F(LocalizedString, IsFoundByTheExactLocaleOrElseInEnglish) {
  useBundle(testing::memoryBundle({
      {"en.lproj/Localizable.strings", "k = english; f = \"%.1f of %@\"; onlyEnglish = x;"},
      {"es.lproj/Localizable.strings", "k = spanish; empty = \"\"; \"\" = nameless;"},
      {"fr.lproj/Other.strings", "k = french;"},
      {"de.lproj/Localizable.strings", "k = german"},
      {"it.lproj/Localizable.strings", "k = (italian);"},
  }));
  const struct {
    const char *key, *locale, *text;
  } rows[] = {
      {"k", "en", "english"},
      {"k", "es", "spanish"},
      {"k", "xx", "english"},
      {"k", "en-GB", "english"},
      {"k", "ES", "english"},
      {"k", "", "english"},
      {"k", "es.lproj/..", "english"},
      {"k", "../es", "english"},
      {"empty", "es", ""},
      {"", "es", "nameless"},
      {"onlyEnglish", "es", "onlyEnglish"},
      {"k", "fr", "k"},
      {"k", "de", "k"},
      {"k", "it", "k"},
  };
  for (const auto& row : rows) {
    EXPECT_EQ(localized(row.key, row.locale), row.text) << row.key << " in " << row.locale;
  }
  EXPECT_EQ(localized("f", "en", {2.25, "Ann"}), "2.2 of Ann");
  EXPECT_EQ(localized("%@?", "es", {"Ann"}), "Ann?") << "a key without an entry is the format";
}

TEST_F(LocalizedString, IsEmptyWithoutABundle) {
  const auto spanishAlone = testing::memoryBundle({{"es.lproj/Localizable.strings", "k = v;"}});
  for (const Bundle::Ref& bundle : {Bundle::Ref(), testing::memoryBundle({}), spanishAlone}) {
    useBundle(bundle);
    EXPECT_EQ(localized("widget-read-more", "en"), "");
    EXPECT_EQ(localized("%@", "en", {"Ann"}), "");
  }
  EXPECT_EQ(localized("k", "es"), "v");
}

TEST_F(LocalizedString, FollowsAFileThatIsEdited) {
  const auto folder =
      std::filesystem::path(::testing::TempDir()) / ("strings-" + std::to_string(::getpid()));
  std::filesystem::create_directories(folder / "en.lproj");
  useBundle(Bundle::open(folder.string()));
  for (const std::string text : {"one", "two", "one", "six"}) {
    std::ofstream(folder / "en.lproj/Localizable.strings") << "k = " << text << ';';
    EXPECT_EQ(localized("k", "en"), text);
  }
  std::filesystem::remove_all(folder);
  EXPECT_EQ(localized("k", "en"), "");
}

TEST(LocalizableTables, AreCompleteInEveryLanguage) {
  std::vector<std::string> languages;
  for (const std::string& folder : Bundle::embedded()->folders("")) {
    if (!folder.ends_with(".lproj")) continue;
    languages.push_back(folder.substr(0, folder.find('.')));
    const auto file = Bundle::embedded()->data(folder + "/Localizable.strings");
    ASSERT_TRUE(file) << folder;
    const auto reading = foundation::readStringsFile(*file);
    const auto* table = std::get_if<StringTable>(&reading);
    ASSERT_TRUE(table) << folder << ": " << std::get<foundation::Error>(reading).description;
    for (const auto& problem : problems(*table)) {
      ADD_FAILURE() << folder << ": " << problem.key << ' ' << problem.what;
    }
  }
  EXPECT_THAT(languages,
              ::testing::IsSupersetOf({"ar", "bg", "cs", "da", "de", "el", "en", "es", "fi", "fr",
                                       "it", "ja", "nb", "nl", "nn", "pl", "pt", "sv"}));
}

/// The neighbours of the link are joined without a blank of anybody's own.
TEST(LocalizableTables, ThePersonalLineIsSpacedByItsTexts) {
  const auto line = [](const char* locale) {
    return localized("widget-title-start", locale) +
           localized("widget-title-return-rate-low", locale, {12.5}) + '[' +
           localized("widget-read-more", locale) + ']' + localized("widget-title-end", locale);
  };
  EXPECT_EQ(
      line("en"),
      "Well chosen! You are among the 12% of shoppers who return the least. [Read more] about "
      "how your returns count.");
  EXPECT_EQ(line("de"),
            "Gut ausgesucht! Du gehörst zu den 12\u00A0% unserer Kundinnen und Kunden, die am "
            "wenigsten zurückschicken. [Mehr dazu], wie deine Retouren zählen.");
  EXPECT_EQ(line("ja"),
            "上手なお買い物です！返品が少ないお客様の上位12%に入っています。[詳しく見る]"
            "（返品の数え方について）");
}

TEST(LocalizableTables, MistakesAreNamed) {
  const auto reading =
      foundation::readStringsFile(*Bundle::embedded()->data("en.lproj/Localizable.strings"));
  const StringTable& good = std::get<StringTable>(reading);
  const char *title = "info-widget-title", *rate = "widget-title-return-rate-low",
             *heading = "webview-overlay-title";
  const struct {
    const char *key, *text, *says;
  } rows[] = {
      {title, "20%20%", "nothing but its figure"},
      {title, "A fifth.", "does not contain its figure"},
      {title, "A 20% B 20% C", "twice"},
      {title, "", "is empty"},
      {"info-widget-title-number", "", "is empty"},
      {rate, "few", "does not show its argument"},
      {rate, "%@%%", "\"%@\", which does not match its argument"},
      {rate, "%d%%", "\"%d\", which does not match"},
      {rate, "%.0f%", "unknown conversion \"%\""},
      {rate, "%.0f% of all",
       "\"% o\", which does not match its argument, a number (%.0f); a percent "},
      {rate, "%2$.0f%%", "\"%2$.0f\", which asks for a second argument"},
      {rate, "%.0f of %.0f", "\"%.0f\", which asks for a second argument"},
      {rate, "%*f", "\"%*f\", which asks for a second argument"},
      {rate, "%.0f %n", "\"%n\", which does not match"},
      {heading, "%f", "\"%f\", which does not match its argument, a text"},
      {"widget-raed-more", "x", "is never used"},
  };
  for (const auto& row : rows) {
    StringTable table = good;
    table[row.key] = row.text;
    const auto found = problems(table);
    ASSERT_FALSE(found.empty()) << row.key << " = " << row.text;
    EXPECT_EQ(found.front().key, row.key);
    EXPECT_THAT(found.front().what, ::testing::HasSubstr(row.says));
  }
  EXPECT_EQ(problems({}).size(), good.size());
}

}  // namespace
}  // namespace quorix
