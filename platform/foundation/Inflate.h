#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

namespace quorix::foundation {

/// Unpacks the body of an answer whose `Content-Encoding` is `encoding`: gzip (also of several
/// members), deflate (also without zlib's header), identity or none. Absent if the encoding is
/// another or the data is broken or incomplete. Stops after `limit` + 1 bytes.
std::optional<std::string> inflated(std::string packed, std::string_view encoding,
                                    std::size_t limit);

}  // namespace quorix::foundation
