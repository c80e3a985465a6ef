#include <unicode/uvernum.h>

#include <thread>
#ifdef __GLIBC__
#include <malloc.h>
#endif

#include "Vectors.h"
#include "platform/foundation/CurrencyFormatter.h"

using quorix::foundation::CurrencyFormatter;

namespace {

constexpr std::int64_t kAmounts[] = {
    0, 1, 4, 5, 10, 999, 1000, 1234567, -1, -1234, 92233720368547758, -92233720368547758};

// If ICU 78 writes a row differently, the row has a column for it: forints have no decimals there,
// and Armenian does not group four digits.
void expectTexts(simdjson::dom::element row, std::string_view column) {
  if (U_ICU_VERSION_MAJOR_NUM >= 78 && row["since_78"].is_array()) column = "since_78";
  const CurrencyFormatter formatter({text(row, "language"), text(row, "currency")});
  std::size_t i = 0;
  for (const simdjson::dom::element expected : row[column].get_array()) {
    const std::int64_t amount = kAmounts[i++];
    if (expected.is_null()) continue;
    EXPECT_EQ(formatter.text(amount), std::string(std::string_view(expected))) << amount;
  }
  EXPECT_EQ(i, std::size(kAmounts));
}

TEST(CurrencyFormatter, WritesAmountsAsTheLanguageDoes) {
  forEachRow("currency", [](simdjson::dom::element row) { expectTexts(row, "texts"); });
}

// Rows that depend on the age of the system's locale data. ICU 72 writes "system"; from the version
// in "since" on, the texts are those of phones.
TEST(CurrencyFormatter, FollowsTheSystemsLocaleData) {
  forEachRow("currency_open", [](simdjson::dom::element row) {
    if (!row["system"].is_array()) return;
    std::int64_t since = 0;
    const bool isNew = !row["since"].get(since) && U_ICU_VERSION_MAJOR_NUM >= since;
    expectTexts(row, isNew ? "texts" : "system");
  });
}

TEST(CurrencyFormatter, WritesAnUnknownLanguageNeutrally) {
  for (const char* language : {"xx", "english", "xx-DE", "und", ""}) {
    EXPECT_EQ(CurrencyFormatter({language, "EUR"}).text(-1234), "-€\u00A01,234.00") << language;
  }
  // Codes that were replaced long ago still count as known languages.
  EXPECT_EQ(CurrencyFormatter({"in", "EUR"}).text(4), CurrencyFormatter({"id", "EUR"}).text(4));
}

TEST(CurrencyFormatter, WritesSomethingForAnyLocale) {
  for (const std::string& language :
       {std::string("en@currency=USD"), std::string(5000, 'x'), std::string("\xFF\xFE"),
        std::string("-_-"), std::string("en\0x", 4)}) {
    for (const std::string& currency :
         {std::string(5000, 'x'), std::string("\xFF\xFE\xFD"), std::string("E\0R", 3)}) {
      EXPECT_THAT(CurrencyFormatter({language, currency}).text(4).value_or(""),
                  testing::HasSubstr("4"));
    }
  }
}

#ifdef __GLIBC__
TEST(CurrencyFormatter, KeepsNothingOfTextsThatAreNoCode) {
  const auto inUse = [] { return mallinfo2().uordblks + mallinfo2().hblkhd; };
  const std::string megabyte(1'000'000, 'x');
  EXPECT_EQ(CurrencyFormatter({"en", megabyte}).text(4), CurrencyFormatter({"en", "x"}).text(4));
  const std::size_t before = inUse();
  for (int i = 0; i < 10; ++i) {
    EXPECT_TRUE(CurrencyFormatter({"en", megabyte + std::to_string(i)}).text(4));
    EXPECT_TRUE(CurrencyFormatter({megabyte + std::to_string(i), "EUR"}).text(4));
  }
  EXPECT_LT(inUse(), before + megabyte.size());
}
#endif

TEST(ConcurrentCurrencyFormatter, IsSharedByThreads) {
  std::vector<std::thread> threads;
  for (int thread = 0; thread < 4; ++thread) {
    threads.emplace_back([] {
      for (int i = 0; i < 100; ++i) {
        const std::string currency{'E', 'U', static_cast<char>('A' + i % 26)};
        EXPECT_TRUE(CurrencyFormatter({i % 2 ? "en" : "de", currency}).text(i));
        EXPECT_EQ(CurrencyFormatter({"en", "EUR"}).text(4), "€4.00");
      }
    });
  }
  for (std::thread& thread : threads) thread.join();
}

}  // namespace
