#include "platform/foundation/Inflate.h"

#include <zlib.h>

#include <algorithm>
#include <utility>

namespace quorix::foundation {
namespace {

// What zlib's "window bits" mean.
constexpr int kZlib = MAX_WBITS, kGzip = MAX_WBITS + 16, kRaw = -MAX_WBITS;

std::optional<std::string> unpacked(std::string& packed, int format, std::size_t limit) {
  z_stream stream{};
  if (inflateInit2(&stream, format) != Z_OK) return std::nullopt;
  std::string plain(limit + 1, '\0');
  stream.next_in = reinterpret_cast<Bytef*>(packed.data());
  stream.avail_in = static_cast<uInt>(packed.size());
  stream.next_out = reinterpret_cast<Bytef*>(plain.data());
  stream.avail_out = static_cast<uInt>(plain.size());
  int result = inflate(&stream, Z_FINISH);
  while (result == Z_STREAM_END && format == kGzip && stream.avail_in > 0 && stream.avail_out > 0) {
    inflateReset(&stream);
    result = inflate(&stream, Z_FINISH);
  }
  inflateEnd(&stream);
  if (result != Z_STREAM_END && stream.avail_out > 0) return std::nullopt;
  plain.resize(plain.size() - stream.avail_out);
  return plain;
}

std::string lowercased(std::string_view text) {
  std::string lower(text);
  std::ranges::transform(lower, lower.begin(), [](char c) {
    return c >= 'A' && c <= 'Z' ? static_cast<char>(c + 'a' - 'A') : c;
  });
  return lower;
}

}  // namespace

std::optional<std::string> inflated(std::string packed, std::string_view encoding,
                                    std::size_t limit) {
  const std::string name = lowercased(encoding);
  if (packed.empty() || name.empty() || name == "identity") return packed;
  if (name == "gzip" || name == "x-gzip") return unpacked(packed, kGzip, limit);
  if (name != "deflate") return std::nullopt;
  // Some servers leave out zlib's header and checksum.
  auto plain = unpacked(packed, kZlib, limit);
  return plain ? plain : unpacked(packed, kRaw, limit);
}

}  // namespace quorix::foundation
