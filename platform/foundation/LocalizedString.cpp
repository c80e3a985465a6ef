#include "platform/foundation/LocalizedString.h"

#include <cstddef>
#include <utility>

namespace quorix::foundation {
namespace {

StringTable& mainTable() {
  static StringTable table;
  return table;
}

/// Moves past the flags, width, precision and length that may stand before a conversion's letter.
void skipDecoration(std::string_view format, std::size_t& at) {
  const auto end = format.find_first_not_of("-+ #0123456789.*'hlqLzjt", at);
  at = end == std::string_view::npos ? format.size() : end;
}

/// Reads the conversion at `at` ("@", "2$@", "-10@") and moves past it. Its argument's position, 0
/// where none is given; nothing for a conversion of anything but a text, which prints nothing.
std::optional<std::size_t> readConversion(std::string_view format, std::size_t& at) {
  std::size_t position = 0;
  std::size_t end = at;
  while (end < format.size() && format[end] >= '0' && format[end] <= '9' && position < 1000) {
    position = position * 10 + static_cast<std::size_t>(format[end++] - '0');
  }
  const bool hasPosition = position > 0 && end < format.size() && format[end] == '$';
  if (hasPosition) at = end + 1;
  skipDecoration(format, at);
  const bool isText = at < format.size() && format[at] == '@';
  if (at < format.size()) ++at;
  if (!isText) return std::nullopt;
  return hasPosition ? position : 0;
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
