#include "platform/foundation/CurrencyFormatter.h"

#include <unicode/currunit.h>
#include <unicode/dcfmtsym.h>
#include <unicode/numberformatter.h>
#include <unicode/ucurr.h>
#include <unicode/uloc.h>
#include <unicode/ures.h>

#include <algorithm>
#include <string_view>

#include "platform/foundation/Cache.h"
#include "platform/foundation/Runtime.h"

namespace quorix::foundation {

struct CurrencyFormatter::Engine {
  icu::number::LocalizedNumberFormatter formatter;
};

struct CurrencyFormatters : Cache<Locale, std::shared_ptr<const CurrencyFormatter::Engine>> {
  // An app shows a handful of locales. The bound limits the memory that unusual input can take.
  CurrencyFormatters() : Cache(32) {}
};

namespace {

/// The size of ICU's own buffers for a locale's name. ICU knows no longer name.
constexpr std::size_t longestLanguage = ULOC_FULLNAME_CAPACITY;

/// Replaces every text that is not a currency code, because all of them give the same amounts.
constexpr std::string_view noCode = "?";

bool isCurrencyCode(std::string_view text) {
  return text.size() == 3 && std::all_of(text.begin(), text.end(), [](char c) {
           return ('A' <= c && c <= 'Z') || ('a' <= c && c <= 'z');
         });
}

/// The language, or the neutral root if the locale data does not have it. ICU alone would fall back
/// to the process's default language.
icu::Locale knownLanguage(const std::string& code) {
  icu::Locale language(code.c_str());
  UErrorCode status = U_ZERO_ERROR;
  const icu::LocalUResourceBundlePointer data(ures_open(nullptr, language.getName(), &status));
  return U_FAILURE(status) || status == U_USING_DEFAULT_WARNING ? icu::Locale::getRoot() : language;
}

icu::number::LocalizedNumberFormatter makeFormatter(const Locale& locale) {
  const icu::Locale language = knownLanguage(locale.languageCode);
  const auto formatter = icu::number::NumberFormatter::withLocale(language);
  const std::string& code = locale.currencyCode;
  UErrorCode status = U_ZERO_ERROR;
  if (isCurrencyCode(code)) return formatter.unit(icu::CurrencyUnit(code, status));
  // If the code is not valid, use the currency of the language's region.
  UChar regional[4] = {};
  if (!code.empty() && *language.getCountry() != '\0' &&
      ucurr_forLocale(language.getName(), regional, 4, &status) == 3 && U_SUCCESS(status)) {
    return formatter.unit(icu::CurrencyUnit(regional, status));
  }
  // Otherwise use the generic sign. Some languages' data would write "XXX".
  status = U_ZERO_ERROR;
  icu::DecimalFormatSymbols symbols(language, status);
  symbols.setSymbol(icu::DecimalFormatSymbols::kCurrencySymbol, u"\u00A4");
  return formatter.symbols(symbols).unit(icu::CurrencyUnit());
}

/// Reduces `locale` to the parts that change the text of an amount. This keeps the cache's keys
/// small.
Locale shortened(const Locale& locale) {
  const std::string& code = locale.currencyCode;
  const bool isUsual = code.empty() || isCurrencyCode(code);
  return {locale.languageCode.size() < longestLanguage ? locale.languageCode : std::string(),
          isUsual ? code : std::string(noCode)};
}

}  // namespace

std::shared_ptr<const CurrencyFormatter::Engine> CurrencyFormatter::engine(const Locale& wanted) {
  const Locale locale = shortened(wanted);
  return Runtime::the<CurrencyFormatters>().get(locale, [&] {
    auto made = std::make_shared<Engine>(Engine{makeFormatter(locale)});
    // ICU compiles a formatter on its third use. Do that here, so that threads which share the
    // formatter only read it.
    UErrorCode status = U_ZERO_ERROR;
    for (int use = 0; use < 3; ++use) made->formatter.formatInt(0, status);
    return made;
  });
}

CurrencyFormatter::CurrencyFormatter(const Locale& locale) : engine_(engine(locale)) {}

std::optional<std::string> CurrencyFormatter::text(std::int64_t wholeUnits) const {
  UErrorCode status = U_ZERO_ERROR;
  const icu::UnicodeString formatted =
      engine_->formatter.formatInt(wholeUnits, status).toString(status);
  if (U_FAILURE(status)) return std::nullopt;
  std::string text;
  return formatted.toUTF8String(text);
}

}  // namespace quorix::foundation
