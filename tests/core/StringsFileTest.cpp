#include "platform/foundation/StringsFile.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "Vectors.h"

namespace quorix::foundation {
namespace {

std::string outcome(const Result<StringTable>& result) {
  const auto* error = std::get_if<Error>(&result);
  if (error == nullptr) return "table";
  return error->code == static_cast<std::int64_t>(StringsFileErrorCode::notATable) ? "other"
                                                                                   : "error";
}

std::string utf16(std::u16string_view text, bool bigEndian) {
  std::string bytes;
  for (const char16_t unit : u"\uFEFF" + std::u16string(text)) {
    const char high = static_cast<char>(unit >> 8), low = static_cast<char>(unit & 0xFF);
    bytes += bigEndian ? high : low;
    bytes += bigEndian ? low : high;
  }
  return bytes;
}

TEST(StringsFile, IsReadAsPhonesReadIt) {
  forEachRow("strings_files", [](simdjson::dom::element row) {
    const auto result = readStringsFile(text(row, "file"));
    ASSERT_EQ(outcome(result), text(row, "outcome"));
    if (outcome(result) != "table") return;
    StringTable expected;
    for (const auto entry : row["table"].get_object()) {
      expected.emplace(entry.key, std::string_view(entry.value));
    }
    EXPECT_EQ(std::get<StringTable>(result), expected);
  });
}

TEST(StringsFile, HoldsTextsInManySpellings) {
  const struct {
    std::string file;
    StringTable table;
  } rows[] = {
      {"a.b-c/d:e_$f = http://x.y/z;", {{"a.b-c/d:e_$f", "http://x.y/z"}}},
      {"'k' = 'a \"b\" c';", {{"k", "a \"b\" c"}}},
      {"{ k = v; }", {{"k", "v"}}},
      {"k = a; l = (1); k = b; l = c;", {{"k", "b"}, {"l", "c"}}},
      {"\"\" = \"\";", {{"", ""}}},
      {"k\u2028=\u2029/* ; */ v // ;\r;\v\f", {{"k", "v"}}},
      {"\"a // b\" = \"/* c */\";", {{"a // b", "/* c */"}}},
      {" \n", {}},
      {R"(k = "\a\b\f\v\r\'\q\u00e9\é";)", {{"k", "\a\b\f\v\r'qu00e9é"}}},
      {"k = \"a\\\nb\nc\";", {{"k", "a\nb\nc"}}},
      {R"(k = "\101\60x\0600\341\375\777";)", {{"k", "A0x00Æÿ\uFFFD"}}},
      {R"(k = "\Ud83d\Ude00\Ud83d\Ud83d-\Ude00\UE9g\U";)", {{"k", "😀\uFFFD\uFFFD-\uFFFD\u00E9g"}}},
      {utf16(u"\"ké\" = \"😀\";", false), {{"ké", "😀"}}},
      {utf16(u"<?xml version=\"1.0\" encoding=\"UTF-16\"?><plist><dict><key>k</key><string>é"
             u"</string></dict></plist>",
             true),
       {{"k", "é"}}},
      {"<plist><!-- c --><dict>\n<key>a &amp; b</key><string> </string><key>c</key><string/>"
       "<key>d</key><string>x<![CDATA[<y>]]></string></dict></plist>",
       {{"a & b", " "}, {"c", ""}, {"d", "x<y>"}}},
  };
  for (const auto& row : rows) {
    const auto result = readStringsFile(row.file);
    ASSERT_EQ(outcome(result), "table") << row.file << std::get<Error>(result).description;
    EXPECT_EQ(std::get<StringTable>(result), row.table) << row.file;
  }
}

TEST(StringsFile, SaysInWhichLineItGoesWrong) {
  const std::string deep(200'000, '(');
  const struct {
    std::string file, outcome, description;
  } rows[] = {
      {"a = b;\r\nk = v\r\nl = w;", "error", "line 3: ';' is expected behind the text for \"k\""},
      {"a = b;\rk v;", "error", "line 2: '=' or ';' is expected behind the key \"k\", not \"v\""},
      {"a = b;\n\n\"k\" = \"v;\nl = w;\n", "error", "line 3: a text is not closed"},
      {"k = \"v\\", "error", "line 1: a text is not closed"},
      {"k = v", "error", "not the end of the file"},
      {"k = é;", "error", "a text is expected, not \"é\""},
      {"k = v; }", "error", "not \"}\""},
      {"{ k = v;", "error", "not the end of the file"},
      {"{ k = v; } x", "error", "the table ends before this"},
      {"a = (b c);", "error", "',' or ')' is expected, not \"c\""},
      {"a = { b = c };", "error", "';' is expected, not \"}\""},
      {"a = <0f1>;", "error", "two hexadecimal digits"},
      {"a = <0g>;", "error", "'>' is expected, not \"g\""},
      {"a = " + deep, "error", "not the end of the file"},
      {"a = 1;\nk = \"\xC3\x28\";", "error", "line 2: a byte that is not UTF-8"},
      {"\xFF\xFE\x22", "error", "odd length"},
      {"bplist00", "error", "binary"},
      {"<plist>\n<dict><key>k</key>\n<strin>v</string></dict></plist>", "error", "line 3: "},
      {"<plist>\n<dict><key>k</key></dict></plist>", "error", "line 2: no value for \"k\""},
      {"<plist><dict>\n<string>k</string></dict></plist>", "error", "line 2: unexpected <string>"},
      {"<plist><dict><key>k</key><string>v<b/></string></dict></plist>", "error", "<b>"},
      {"<plist/>", "error", "empty"},
      {"hello", "other", "lone value"},
      {"(a, b, )", "other", "lone value"},
      {"<0f 1a>", "other", "lone value"},
      {"a = b;\nk = ( { c; d = (<00>, ()); }, e );", "other", "line 2: the value of \"k\""},
      {"a = " + deep + std::string(deep.size(), ')') + ';', "other", "line 1: the value of \"a\""},
      {"<plist><array/></plist>", "other", "<array>"},
      {"<plist><dict><key>k</key>\n<dict/></dict></plist>", "other", "line 2: the value of \"k\""},
  };
  for (const auto& row : rows) {
    SCOPED_TRACE(row.file.substr(0, 100));
    const auto result = readStringsFile(row.file);
    ASSERT_EQ(outcome(result), row.outcome);
    EXPECT_THAT(
        std::get<Error>(result).description,
        ::testing::AllOf(::testing::StartsWith("line "), ::testing::HasSubstr(row.description)));
  }
}

}  // namespace
}  // namespace quorix::foundation
