#include "platform/foundation/CurrencyFormatter.h"

#include <unicode/currunit.h>
#include <unicode/dcfmtsym.h>
#include <unicode/numberformatter.h>
#include <unicode/ucurr.h>
#include <unicode/ures.h>

#include <algorithm>
#include <map>
#include <mutex>
#include <string_view>
#include <utility>

namespace quorix::foundation {

struct CurrencyFormatter::Engine {
  icu::number::LocalizedNumberFormatter formatter;
};

namespace {

/// A process shows a handful of locales; the bound only keeps odd input from growing the cache.
constexpr std::size_t kCachedEngines = 32;

bool isCurrencyCode(std::string_view text) {
  return text.size() == 3 && std::all_of(text.begin(), text.end(), [](char c) {
           return ('A' <= c && c <= 'Z') || ('a' <= c && c <= 'z');
         });
}

/// The language, or the neutral root where the locale data does not know it: left to itself ICU
/// would take the process's own language instead.
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
  // A text that is no code gives way to the currency of the language's region.
  UChar regional[4] = {};
  if (!code.empty() && *language.getCountry() != '\0' &&
      ucurr_forLocale(language.getName(), regional, 4, &status) == 3 && U_SUCCESS(status)) {
    return formatter.unit(icu::CurrencyUnit(regional, status));
  }
  // Without one, the generic sign, which some languages' data would spell "XXX".
  status = U_ZERO_ERROR;
  icu::DecimalFormatSymbols symbols(language, status);
  symbols.setSymbol(icu::DecimalFormatSymbols::kCurrencySymbol, u"\u00A4");
  return formatter.symbols(symbols).unit(icu::CurrencyUnit());
}

}  // namespace

std::shared_ptr<const CurrencyFormatter::Engine> CurrencyFormatter::engine(const Locale& locale) {
  static std::mutex mutex;
  static std::map<std::pair<std::string, std::string>, std::shared_ptr<const Engine>> engines;
  const std::pair key(locale.languageCode, locale.currencyCode);
  const std::scoped_lock lock(mutex);
  if (const auto found = engines.find(key); found != engines.end()) return found->second;
  if (engines.size() >= kCachedEngines) engines.clear();
  auto made = std::make_shared<Engine>(Engine{makeFormatter(locale)});
  // ICU compiles a formatter on its third use. Here that happens before threads share it: from then
  // on they only read.
  UErrorCode status = U_ZERO_ERROR;
  for (int use = 0; use < 3; ++use) made->formatter.formatInt(0, status);
  return engines[key] = std::move(made);
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
