#include "QuorixWidgets/localization/Strings.h"

#include <gmock/gmock.h>

#include "platform/foundation/StringsFile.h"
#include "tests/core/Resources.h"
#include "tests/core/Vectors.h"

namespace quorix {
namespace {

using foundation::Bundle;
using foundation::Error;
using foundation::readStringsFile;
using foundation::StringTable;
using testing::OtherResources;

std::string outcome(const foundation::Result<StringTable>& result) {
  const auto* error = std::get_if<Error>(&result);
  if (error == nullptr) return "table";
  return error->code == static_cast<std::int64_t>(foundation::StringsFileErrorCode::notATable)
             ? "other"
             : "error";
}

void expectReading(simdjson::dom::element row) {
  const bool isText = row["bytes"].error() != simdjson::SUCCESS;
  const auto result = readStringsFile(isText ? ::text(row, "file") : fromHex(::text(row, "bytes")));
  ASSERT_EQ(outcome(result), ::text(row, "outcome"));
  if (const auto* table = std::get_if<StringTable>(&result)) {
    StringTable expected;
    for (const auto entry : row["table"].get_object()) {
      expected.emplace(entry.key, std::string_view(entry.value));
    }
    EXPECT_EQ(*table, expected);
    return;
  }
  const std::string& description = std::get<Error>(result).description;
  EXPECT_TRUE(description.starts_with("line ")) << description;
  if (row["says"].error() == simdjson::SUCCESS) {
    EXPECT_THAT(description, ::testing::HasSubstr(::text(row, "says")));
  }
}

TEST(StringsFile, IsReadAsPhonesReadItAndSaysInWhichLineItGoesWrong) {
  forEachRow("strings_files", expectReading);
  forEachRow("strings_files_own", expectReading);
}

TEST(StringsFile, MayBeNestedWithoutEnd) {
  const std::string deep(200'000, '(');
  EXPECT_EQ(outcome(readStringsFile("a = " + deep)), "error");
  EXPECT_EQ(outcome(readStringsFile("a = " + deep + std::string(deep.size(), ')') + ';')), "other");
}

TEST(LocalizedString, IsFoundByTheExactLocaleOrElseInEnglish) {
  const OtherResources resources({
      {"en.lproj/Localizable.strings", "k = english; f = \"%.1f of %@\"; onlyEnglish = x;"},
      {"es.lproj/Localizable.strings", "k = spanish; empty = \"\"; \"\" = nameless;"},
      {"fr.lproj/Other.strings", "k = french;"},
      {"de.lproj/Localizable.strings", "k = german"},
      {"it.lproj/Localizable.strings", "k = (italian);"},
  });
  forEachRow("string_locales", [](simdjson::dom::element row) {
    EXPECT_EQ(localized(::text(row, "key"), ::text(row, "locale")), ::text(row, "text"));
  });
  EXPECT_EQ(localized("f", "en", {2.25, "Ann"}), "2.2 of Ann");
  EXPECT_EQ(localized("%@?", "es", {"Ann"}), "Ann?") << "a key without an entry is the format";
}

TEST(LocalizedString, IsEmptyWithoutABundle) {
  const auto spanishAlone = testing::memoryBundle({{"es.lproj/Localizable.strings", "k = v;"}});
  for (const Bundle::Ref& bundle : {Bundle::Ref(), testing::memoryBundle({}), spanishAlone}) {
    const OtherResources resources(bundle);
    EXPECT_EQ(localized("widget-read-more", "en"), "");
    EXPECT_EQ(localized("%@", "en", {"Ann"}), "");
    EXPECT_EQ(localized("k", "es"), bundle == spanishAlone ? "v" : "");
  }
}

/// The texts beside the link are joined without an additional blank.
TEST(LocalizableTables, ThePersonalLineIsSpacedByItsTexts) {
  const auto line = [](const char* locale) {
    return localized("widget-title-start", locale) +
           localized("widget-title-return-rate-low", locale, {12.5}) + '[' +
           localized("widget-read-more", locale) + ']' + localized("widget-title-end", locale);
  };
  EXPECT_EQ(line("de"),
            "Gut ausgesucht! Du gehörst zu den 12\u00A0% unserer Kundinnen und Kunden, die am "
            "wenigsten zurückschicken. [Mehr dazu], wie deine Retouren zählen.");
  EXPECT_EQ(line("ja"),
            "上手なお買い物です！返品が少ないお客様の上位12%に入っています。[詳しく見る]"
            "（返品の数え方について）");
}

TEST(LocalizableTables, MistakesAreNamed) {
  const auto reading = readStringsFile(*Bundle::embedded()->data("en.lproj/Localizable.strings"));
  const StringTable& good = std::get<StringTable>(reading);
  forEachRow("string_mistakes", [&](simdjson::dom::element row) {
    StringTable table = good;
    table[::text(row, "key")] = ::text(row, "text");
    const auto found = problems(table);
    ASSERT_FALSE(found.empty());
    EXPECT_EQ(found.front().key, ::text(row, "key"));
    EXPECT_THAT(found.front().what, ::testing::HasSubstr(::text(row, "says")));
  });
  EXPECT_EQ(problems({}).size(), good.size());
}

}  // namespace
}  // namespace quorix
