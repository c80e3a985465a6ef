#include "platform/foundation/Decimal.h"

#include <cstdint>

namespace quorix::foundation {

std::optional<double> parseDecimal(std::string_view text) {
  const bool negative = text.starts_with('-');
  if (negative) text.remove_prefix(1);
  std::int64_t digits = 0;  // 15 digits and a power of ten below 10^16: both exact as doubles
  double scale = 1;
  int count = 0;
  bool fraction = false;
  for (const char c : text) {
    if (c == '.' && !fraction) {
      fraction = true;
      continue;
    }
    if (c < '0' || c > '9' || ++count > 15) return std::nullopt;
    digits = digits * 10 + (c - '0');
    if (fraction) scale *= 10;
  }
  if (count == 0) return std::nullopt;
  const double value = static_cast<double>(digits) / scale;
  return negative ? -value : value;
}

}  // namespace quorix::foundation
