#include "QuorixWidgets/localization/Translations.h"
#include "Vectors.h"

using quorix::readTranslationTable;
using quorix::TranslationTable;
using quorix::TranslationTableResult;
using quorix::foundation::Error;

namespace {

using Table = std::shared_ptr<const TranslationTable>;

std::string outcome(const TranslationTableResult& result) {
  if (std::holds_alternative<Table>(result)) return "table";
  const Error& error = std::get<Error>(result);
  if (error.domain == "JSON") return "not json";
  return error.domain == "Localization" && error.code == -2 ? "wrong shape" : error.domain;
}

void expectOutcome(simdjson::dom::element row) {
  const auto result = readTranslationTable(text(row, "body"));
  ASSERT_EQ(outcome(result), text(row, "outcome"));
  if (outcome(result) != "table") return;
  std::size_t count = 0;
  for (const auto section : row["table"].get_object()) {
    for (const auto entry : section.value.get_object()) {
      ++count;
      EXPECT_EQ(std::get<Table>(result)->text(section.key, entry.key),
                std::string_view(entry.value));
    }
  }
  EXPECT_EQ(std::get<Table>(result)->entries().size(), count);
}

TEST(TranslationTable, IsReadFromObjectsOfObjectsOfTextsOrRefusedWhole) {
  forEachRow("tables", expectOutcome);
  forEachRow("tables_own", expectOutcome);
}

TEST(BuiltInTranslations, AreChosenByTheExactLocale) {
  const auto english = quorix::builtInTranslations("en");
  const auto spanish = quorix::builtInTranslations("es");
  EXPECT_EQ(english->text("labels", "hint"), "Tap to learn more");
  EXPECT_EQ(spanish->text("labels", "hint"), "Toque para saber más");
  for (const char* locale : {"en", "", "fr", "ES", "es-MX", " es", "es "}) {
    EXPECT_EQ(quorix::builtInTranslations(locale), english) << locale;
  }
  ASSERT_EQ(english->entries().size(), 9u);
  ASSERT_EQ(spanish->entries().size(), 9u);
  for (const auto& entry : english->entries()) {
    EXPECT_FALSE(spanish->text(entry.section, entry.key).empty()) << entry.key;
  }
}

}  // namespace
