#pragma once

#include <cstddef>
#include <memory>
#include <span>
#include <string>
#include <string_view>
#include <utility>

namespace quorix::foundation {

/// The bytes of a resource: a view of a file that is compiled into the program, or a shared copy of
/// a file on disk. Copies share the bytes. Immutable; any thread.
class Data {
 public:
  Data() = default;
  explicit Data(std::string bytes)
      : owner_(std::make_shared<const std::string>(std::move(bytes))), bytes_(*owner_) {}

  /// Bytes that live as long as the process.
  static Data permanent(std::string_view bytes) {
    Data data;
    data.bytes_ = bytes;
    return data;
  }

  /// Valid as long as this value or a copy of it lives.
  std::string_view text() const { return bytes_; }
  operator std::string_view() const { return bytes_; }
  std::span<const std::byte> bytes() const { return std::as_bytes(std::span(bytes_)); }
  std::size_t size() const { return bytes_.size(); }

  bool operator==(const Data& other) const {
    const bool same = bytes_.data() == other.bytes_.data() && size() == other.size();
    return same || bytes_ == other.bytes_;
  }

 private:
  std::shared_ptr<const std::string> owner_;
  std::string_view bytes_;
};

}  // namespace quorix::foundation
