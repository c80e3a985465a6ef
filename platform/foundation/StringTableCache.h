#pragma once

#include <cstddef>
#include <memory>
#include <mutex>
#include <string>
#include <string_view>
#include <vector>

#include "platform/foundation/StringTable.h"

namespace quorix::foundation {

/// The string tables read last, each beside the bytes that it was read from: a look-up compares
/// bytes, which is far quicker than reading them, and a file that has changed is read at once. Any
/// thread.
class StringTableCache {
 public:
  /// The table that `bytes` spell, or null. Never null for a table, however large.
  std::shared_ptr<const StringTable> read(std::string_view bytes);

 private:
  struct Entry {
    std::string bytes;
    std::shared_ptr<const StringTable> table;
  };

  std::mutex mutex_;
  std::vector<Entry> entries_;
  std::size_t oldest_ = 0;
};

}  // namespace quorix::foundation
