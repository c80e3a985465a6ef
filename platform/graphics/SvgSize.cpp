#include "platform/graphics/SvgSize.h"

#include <algorithm>
#include <array>

#include "platform/foundation/Numbers.h"

namespace quorix::graphics {
namespace {

constexpr std::string_view blanks = " \t\r\n";

/// The text between "<svg" and the end of the tag.
std::optional<std::string_view> rootAttributes(std::string_view text) {
  if (text.starts_with("\xEF\xBB\xBF")) text.remove_prefix(3);
  for (;;) {
    text.remove_prefix(std::min(text.find_first_not_of(blanks), text.size()));
    if (text.starts_with("<svg") && text.size() > 4 && blanks.find(text[4]) != blanks.npos) break;
    std::string_view close;
    if (text.starts_with("<!--")) {
      close = "-->";
    } else if (text.starts_with("<?")) {
      close = "?>";
    } else if (text.starts_with("<!")) {
      close = ">";
    } else {
      return std::nullopt;
    }
    const auto end = text.find(close);
    if (end == text.npos) return std::nullopt;
    text.remove_prefix(end + close.size());
  }
  text.remove_prefix(4);
  char quote = 0;
  for (std::size_t i = 0; i < text.size(); ++i) {
    const char c = text[i];
    if (quote == 0 && c == '>') return text.substr(0, i);
    if (quote == 0 && (c == '"' || c == '\'')) {
      quote = c;
    } else if (c == quote) {
      quote = 0;
    }
  }
  return std::nullopt;
}

std::optional<std::string_view> attribute(std::string_view attributes, std::string_view name) {
  while (!attributes.empty()) {
    const auto start = attributes.find_first_not_of(blanks);
    const auto equals = attributes.find('=');
    if (start >= equals || equals == attributes.npos) return std::nullopt;
    std::string_view found = attributes.substr(start, equals - start);
    found = found.substr(0, found.find_last_not_of(blanks) + 1);
    const auto open = attributes.find_first_of("\"'", equals);
    if (open == attributes.npos) return std::nullopt;
    const auto close = attributes.find(attributes[open], open + 1);
    if (close == attributes.npos) return std::nullopt;
    if (found == name) return attributes.substr(open + 1, close - open - 1);
    attributes.remove_prefix(close + 1);
  }
  return std::nullopt;
}

std::optional<double> length(std::optional<std::string_view> text) {
  if (!text) return std::nullopt;
  if (text->ends_with("px")) text->remove_suffix(2);
  const auto value = foundation::parseDecimal(*text);
  return value && *value > 0 ? value : std::nullopt;
}

std::optional<SvgSize> viewBoxSize(std::string_view text) {
  std::array<std::string_view, 4> numbers;
  for (auto& number : numbers) {
    text.remove_prefix(std::min(text.find_first_not_of(" ,\t\r\n"), text.size()));
    number = text.substr(0, text.find_first_of(" ,\t\r\n"));
    text.remove_prefix(number.size());
  }
  const auto width = length(numbers[2]);
  const auto height = length(numbers[3]);
  if (!width || !height) return std::nullopt;
  return SvgSize{*width, *height};
}

}  // namespace

std::optional<SvgSize> readSvgSize(std::string_view svg) {
  const auto attributes = rootAttributes(svg);
  if (!attributes) return std::nullopt;
  const auto width = length(attribute(*attributes, "width"));
  const auto height = length(attribute(*attributes, "height"));
  if (width && height) return SvgSize{*width, *height};
  const auto viewBox = attribute(*attributes, "viewBox");
  return viewBox ? viewBoxSize(*viewBox) : std::nullopt;
}

}  // namespace quorix::graphics
