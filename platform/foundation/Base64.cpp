#include "platform/foundation/Base64.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <string_view>

namespace quorix::foundation {
namespace {

constexpr std::string_view base64Alphabet =
    "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789+/";

/// Marks an invalid character. Lies above the 24 bits of a value, so one test after the loop checks
/// the whole text.
constexpr std::uint32_t invalidBit = 1u << 31;

/// The value of each character, shifted to each of its four places in 24 bits.
using Values = std::array<std::array<std::uint32_t, 256>, 4>;

constexpr Values characterValues = [] {
  Values result{};
  for (std::uint32_t place = 0; place < 4; ++place) {
    auto& shifted = result[place];
    shifted.fill(invalidBit);
    for (std::uint32_t i = 0; i < base64Alphabet.size(); ++i) {
      shifted[static_cast<unsigned char>(base64Alphabet[i])] = i << (18 - 6 * place);
    }
    shifted['-'] = shifted['+'];
    shifted['_'] = shifted['/'];
  }
  return result;
}();

/// The 24 bits of four characters. Sets `invalidBit` if one of them is invalid.
std::uint32_t quantum(const char* text) {
  const auto value = [&](int i) { return characterValues[i][static_cast<unsigned char>(text[i])]; };
  return value(0) | value(1) | value(2) | value(3);
}

}  // namespace

std::optional<std::string> decodeBase64(std::string text) {
  if (text.size() % 4 != 0) return std::nullopt;
  const std::size_t padding = !text.ends_with('=') ? 0 : text.ends_with("==") ? 2 : 1;
  std::fill_n(text.rbegin(), padding, base64Alphabet[0]);

  const char* const end = text.data() + text.size();
  char* out = text.data();
  std::uint32_t invalid = 0;
  for (const char* in = out; in != end; in += 4) {
    const std::uint32_t bits = quantum(in);
    invalid |= bits;
    *out++ = static_cast<char>(bits >> 16);
    *out++ = static_cast<char>(bits >> 8);
    *out++ = static_cast<char>(bits);
  }
  if (invalid & invalidBit) return std::nullopt;
  text.resize(text.size() / 4 * 3 - padding);
  return text;
}

}  // namespace quorix::foundation
