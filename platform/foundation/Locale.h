#pragma once

#include <string>

namespace quorix::foundation {

/// A language and a currency, both as given and never checked: the formatter decides what to make
/// of them.
struct Locale {
  std::string languageCode;
  std::string currencyCode;

  bool operator==(const Locale&) const = default;
};

}  // namespace quorix::foundation
