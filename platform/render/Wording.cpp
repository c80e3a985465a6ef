#include "platform/render/Wording.h"

#include <array>
#include <cmath>
#include <cstdio>

#include "platform/foundation/Numbers.h"
#include "platform/layout/Geometry.h"

namespace quorix::render {

std::string number(double value) {
  if (value == layout::infinity) return "infinity";
  return foundation::shortestNumber(value);
}

std::string points(double length) {
  return number(std::round(length * 1000) / 1000 + 0.0);  // no "-0"
}

std::string inQuotes(std::string_view text) {
  std::string result = "\"";
  for (const char c : text) {
    if (c == '"' || c == '\\') {
      result += '\\';
      result += c;
    } else if (c == '\n') {
      result += "\\n";
    } else if (static_cast<unsigned char>(c) < 0x20) {
      std::array<char, 7> code;
      std::snprintf(code.data(), code.size(), "\\u%04x", static_cast<unsigned>(c));
      result += code.data();
    } else {
      result += c;
    }
  }
  return result + '"';
}

std::string hex(graphics::RGBA color) {
  std::array<char, 10> text;
  std::snprintf(text.data(), text.size(), "#%02X%02X%02X%02X", color.red, color.green, color.blue,
                color.alpha);
  return text.data();
}

}  // namespace quorix::render
