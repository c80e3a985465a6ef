#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <string>

namespace quorix::foundation {

/// A language and a currency, as given. The formatter checks them.
struct Locale {
  std::string languageCode;
  std::string currencyCode;

  bool operator==(const Locale&) const = default;
};

/// Writes whole currency units in the style of a locale. Formatters of one locale share an engine,
/// so that one formatter per widget is cheap. Any thread.
///
///     CurrencyFormatter({"en", "EUR"}).text(4)  // "€4.00"
class CurrencyFormatter {
 public:
  explicit CurrencyFormatter(const Locale& locale);

  /// The text of an amount in whole units, absent when the locale data yields none.
  std::optional<std::string> text(std::int64_t wholeUnits) const;

 private:
  friend struct CurrencyFormatters;
  struct Engine;
  static std::shared_ptr<const Engine> engine(const Locale& locale);
  std::shared_ptr<const Engine> engine_;
};

}  // namespace quorix::foundation
