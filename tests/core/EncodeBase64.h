#pragma once

#include <string>
#include <string_view>

namespace quorix::testing {

/// `bytes` in standard base64 with padding.
inline std::string encodeBase64(std::string_view bytes) {
  constexpr std::string_view alphabet =
      "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789+/";
  std::string text;
  for (std::size_t i = 0; i < bytes.size(); i += 3) {
    unsigned bits = 0;
    for (std::size_t k = i; k < i + 3; ++k) {
      bits = bits << 8 | (k < bytes.size() ? static_cast<unsigned char>(bytes[k]) : 0U);
    }
    for (const unsigned shift : {18U, 12U, 6U, 0U}) text += alphabet[bits >> shift & 63U];
  }
  const std::size_t padding = (3 - bytes.size() % 3) % 3;
  return text.replace(text.size() - padding, padding, padding, '=');
}

}  // namespace quorix::testing
