#include "platform/foundation/CurrencyFormatter.h"

#include <unicode/currunit.h>
#include <unicode/numberformatter.h>
#include <unicode/ucurr.h>

#include <algorithm>
#include <map>
#include <mutex>
#include <string_view>

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

/// The code as given; for a text that is none, the currency of the language's region where it names
/// one, and otherwise no currency, which shows as the generic sign.
icu::CurrencyUnit currencyUnit(const std::string& code, const icu::Locale& language) {
  UErrorCode status = U_ZERO_ERROR;
  if (isCurrencyCode(code)) return {icu::StringPiece(code), status};
  UChar regional[4] = {};
  if (!code.empty() && *language.getCountry() != '\0' &&
      ucurr_forLocale(language.getName(), regional, 4, &status) == 3 && U_SUCCESS(status)) {
    return {regional, status};
  }
  status = U_ZERO_ERROR;
  return {u"XXX", status};
}

}  // namespace

std::shared_ptr<const CurrencyFormatter::Engine> CurrencyFormatter::engine(const Locale& locale) {
  static std::mutex mutex;
  static std::map<Locale, std::shared_ptr<const Engine>> engines;
  const std::scoped_lock lock(mutex);
  if (const auto found = engines.find(locale); found != engines.end()) return found->second;
  if (engines.size() >= kCachedEngines) engines.clear();
  const icu::Locale language(locale.languageCode.c_str());
  auto made =
      std::make_shared<Engine>(Engine{icu::number::NumberFormatter::withLocale(language).unit(
          currencyUnit(locale.currencyCode, language))});
  return engines[locale] = std::move(made);
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
