#include "QuorixWidgets/localization/Strings.h"

#include <unistd.h>

#include <clocale>
#include <cstdlib>
#include <filesystem>
#include <limits>

#include "platform/foundation/StringFormat.h"
#include "platform/foundation/StringTable.h"
#include "platform/foundation/UnicodeText.h"
#include "tests/core/Resources.h"
#include "tests/core/Vectors.h"

namespace quorix {
namespace {

using foundation::Bundle;
using foundation::components;
using foundation::FormatArgument;
using foundation::formatted;
using foundation::readStringsFile;
using foundation::StringTable;
using foundation::uppercased;

using Limits = std::numeric_limits<double>;

TEST(StringFormat, ShowsWhatPhonesShow) {
  forEachRow("formats", [](simdjson::dom::element row) {
    const bool isText = row["string"].error() == simdjson::SUCCESS;
    const FormatArgument argument =
        isText ? FormatArgument(::text(row, "string")) : FormatArgument(number(row, "double"));
    EXPECT_EQ(formatted(::text(row, "format"), {argument}), ::text(row, "text"));
  });
}

TEST(StringFormat, WritesAPointInEveryLocale) {
  const auto folder = std::filesystem::temp_directory_path() / std::to_string(getpid());
  std::filesystem::create_directories(folder);
  const std::string name = "de_DE.UTF-8", make = "localedef -i de_DE -f UTF-8 ";
  ASSERT_EQ(std::system((make + (folder / name).string()).c_str()), 0);
  setenv("LOCPATH", folder.c_str(), 1);
  ASSERT_TRUE(std::setlocale(LC_NUMERIC, name.c_str()));
  EXPECT_EQ(std::localeconv()->decimal_point, std::string(","));
  EXPECT_EQ(
      formatted("%.1f|%+08.2f|%-8.1e|%#.0f|%a|%'d", {-12.5, 12.5, 12.5, 12.0, 1.5, 1234567.0}),
      "-12.5|+0012.50|1.2e+01 |12.|0x1.8p+0|1234567");
  std::setlocale(LC_NUMERIC, "C");
  std::filesystem::remove_all(folder);
}

FormatArgument argument(simdjson::dom::element value) {
  if (value.is_string()) return std::string(std::string_view(value));
  return value.is_object() ? number(value, "double") : double(value);
}

/// For every table, shows only an argument, the table's own text, or nothing.
TEST(StringFormat, IsSafeWithAnyFormat) {
  forEachRow("formats_own", [](simdjson::dom::element row) {
    std::vector<FormatArgument> arguments;
    for (const auto value : row["arguments"].get_array()) arguments.push_back(argument(value));
    EXPECT_EQ(formatted(::text(row, "format"), arguments), ::text(row, "text"));
  });
}

TEST(StringFormat, BoundsItsFields) {
  const std::string blanks(511, ' ');
  EXPECT_EQ(formatted("%999999999999999999999.0f|", {1.0}), blanks + "1|");
  EXPECT_EQ(formatted("%-99999999999999999999.0f|", {1.0}), "1" + blanks + "|");
  EXPECT_EQ(formatted("%*.0f|", {1e300, 1.0}), blanks + "1|");
  EXPECT_EQ(formatted("%.99999f", {1.0}).size(), 2u + 512);
  EXPECT_EQ(formatted("%.99999f", {Limits::max()}).size(), 309u + 1 + 512);
}

void expectPieces(const std::string& table, bool withEmptyOnes) {
  forEachRow(table, [&](simdjson::dom::element row) {
    const std::string title = withBytes(::text(row, "title"));
    auto pieces = components(title, ::text(row, "number"));
    if (!withEmptyOnes) std::erase(pieces, "");
    const auto expected = texts(row["parts"]);
    ASSERT_EQ(pieces.size(), expected.size());
    for (std::size_t i = 0; i < pieces.size(); ++i) EXPECT_EQ(pieces[i], withBytes(expected[i]));
  });
}

TEST(UnicodeText, SplitsAsPhonesDo) {
  expectPieces("titles", false);
  expectPieces("titles_own", true);
  expectPieces("graphemes", false);
}

TEST(UnicodeText, CapitalsFollowTheLanguage) {
  forEachRow("casing", [](simdjson::dom::element row) {
    EXPECT_EQ(uppercased(::text(row, "text"), ::text(row, "language")), ::text(row, "upper"));
  });
  EXPECT_EQ(uppercased("a\xFFz", "xx"), "A\uFFFDZ");
}

std::string outcome(const foundation::Result<StringTable>& result) {
  const auto* error = std::get_if<foundation::Error>(&result);
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
  const std::string& description = std::get<foundation::Error>(result).description;
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
  const testing::OtherResources resources({
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
    const testing::OtherResources resources(bundle);
    EXPECT_EQ(localized("widget-read-more", "en"), "");
    EXPECT_EQ(localized("%@", "en", {"Ann"}), "");
    EXPECT_EQ(localized("k", "es"), bundle == spanishAlone ? "v" : "");
  }
}

/// The texts beside the link are joined without another blank.
TEST(LocalizableTables, ThePersonalLineIsSpacedByItsTexts) {
  forEachRow("personal_lines", [](simdjson::dom::element row) {
    const std::string locale = ::text(row, "locale");
    EXPECT_EQ(localized("widget-title-start", locale) +
                  localized("widget-title-return-rate-low", locale, {12.5}) + '[' +
                  localized("widget-read-more", locale) + ']' +
                  localized("widget-title-end", locale),
              ::text(row, "line"));
  });
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
