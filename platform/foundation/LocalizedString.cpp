#include "platform/foundation/LocalizedString.h"

#include <cstddef>
#include <utility>

namespace quorix::foundation {
namespace {

StringTable& mainTable() {
  static StringTable table;
  return table;
}

/// Reads "@" or "2$@" at `at` and moves past it; nothing when no conversion stands there. The
/// number is 0 without a position.
std::optional<std::size_t> readConversion(std::string_view format, std::size_t& at) {
  std::size_t position = 0;
  std::size_t end = at;
  while (end < format.size() && format[end] >= '0' && format[end] <= '9' && position < 1000) {
    position = position * 10 + static_cast<std::size_t>(format[end++] - '0');
  }
  if (end > at) {
    if (position == 0 || end == format.size() || format[end++] != '$') return std::nullopt;
  }
  if (end == format.size() || format[end] != '@') return std::nullopt;
  at = end + 1;
  return position;
}

std::string formatted(std::string_view format, const std::vector<std::string>& arguments) {
  std::string text;
  std::size_t next = 0;
  for (std::size_t at = 0; at < format.size();) {
    if (format[at] != '%') {
      text += format[at++];
      continue;
    }
    ++at;
    if (at < format.size() && format[at] == '%') {
      text += '%';
      ++at;
    } else if (const auto position = readConversion(format, at)) {
      const std::size_t index = *position == 0 ? next++ : *position - 1;
      text += index < arguments.size() ? arguments[index] : "(null)";
    }
  }
  return text;
}

}  // namespace

void setMainStringTable(StringTable table) { mainTable() = std::move(table); }

std::string localizedString(std::string_view key, const std::vector<std::string>& arguments) {
  if (mainTable()) {
    if (const auto entry = mainTable()(key)) return formatted(*entry, arguments);
  }
  return formatted(key, arguments);
}

}  // namespace quorix::foundation
