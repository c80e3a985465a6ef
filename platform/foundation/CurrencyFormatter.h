#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <string>

#include "platform/foundation/Locale.h"

namespace quorix::foundation {

/// Writes whole currency units the way a locale's language writes its currency. Formatters of one
/// locale share what is costly to make, so one per widget is cheap. Any thread.
///
///     CurrencyFormatter({"en", "EUR"}).text(4)  // "€4.00"
class CurrencyFormatter {
 public:
  explicit CurrencyFormatter(const Locale& locale);

  /// The text of an amount in whole units, or nothing when the locale data yields none.
  std::optional<std::string> text(std::int64_t wholeUnits) const;

 private:
  struct Engine;
  static std::shared_ptr<const Engine> engine(const Locale& locale);
  std::shared_ptr<const Engine> engine_;
};

}  // namespace quorix::foundation
