#include "platform/foundation/Base64.h"

#include <array>
#include <cstdint>

namespace quorix::foundation {
namespace {

constexpr std::string_view kAlphabet =
    "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789+/";

/// Above every six-bit value, so that a whole quantum is checked with one comparison.
constexpr std::uint32_t kInvalid = 1u << 31;

constexpr auto kValues = [] {
  std::array<std::uint32_t, 256> values{};
  values.fill(kInvalid);
  for (std::uint32_t i = 0; i < kAlphabet.size(); ++i) {
    values[static_cast<unsigned char>(kAlphabet[i])] = i;
  }
  return values;
}();

/// Four characters as 24 bits, or a value with `kInvalid` set.
std::uint32_t quantum(char a, char b, char c, char d) {
  const auto value = [](char character) { return kValues[static_cast<unsigned char>(character)]; };
  const std::uint32_t invalid = (value(a) | value(b) | value(c) | value(d)) & kInvalid;
  return invalid | value(a) << 18 | value(b) << 12 | value(c) << 6 | value(d);
}

}  // namespace

std::optional<std::string> decodeBase64(std::string_view text) {
  if (text.size() % 4 != 0) return std::nullopt;
  const std::size_t padding = !text.ends_with('=') ? 0 : text.ends_with("==") ? 2 : 1;
  std::string bytes(text.size() / 4 * 3, '\0');
  char* out = bytes.data();
  for (std::size_t i = 0; i < text.size(); i += 4) {
    const bool last = i + 4 == text.size();
    const std::uint32_t bits =
        quantum(text[i], text[i + 1], last && padding == 2 ? 'A' : text[i + 2],
                last && padding > 0 ? 'A' : text[i + 3]);
    if (bits & kInvalid) return std::nullopt;
    *out++ = static_cast<char>(bits >> 16);
    *out++ = static_cast<char>(bits >> 8);
    *out++ = static_cast<char>(bits);
  }
  bytes.resize(bytes.size() - padding);
  return bytes;
}

std::string encodeBase64(std::string_view bytes) {
  std::string text;
  text.reserve((bytes.size() + 2) / 3 * 4);
  for (std::size_t i = 0; i < bytes.size(); i += 3) {
    const auto byte = [&](std::size_t k) -> std::uint32_t {
      return i + k < bytes.size() ? static_cast<unsigned char>(bytes[i + k]) : 0;
    };
    const std::uint32_t bits = byte(0) << 16 | byte(1) << 8 | byte(2);
    text += kAlphabet[bits >> 18];
    text += kAlphabet[bits >> 12 & 63];
    text += i + 1 < bytes.size() ? kAlphabet[bits >> 6 & 63] : '=';
    text += i + 2 < bytes.size() ? kAlphabet[bits & 63] : '=';
  }
  return text;
}

}  // namespace quorix::foundation
