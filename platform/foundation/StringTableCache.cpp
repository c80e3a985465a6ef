#include "platform/foundation/StringTableCache.h"

#include <utility>

#include "platform/foundation/StringsFile.h"

namespace quorix::foundation {
namespace {

constexpr std::size_t kMostEntries = 4;       // a screen speaks one language, or two
constexpr std::size_t kLargestKept = 65'536;  // bytes

std::shared_ptr<const StringTable> readTable(std::string_view bytes) {
  auto reading = readStringsFile(bytes);
  auto* table = std::get_if<StringTable>(&reading);
  return table == nullptr ? nullptr : std::make_shared<const StringTable>(std::move(*table));
}

}  // namespace

std::shared_ptr<const StringTable> StringTableCache::read(std::string_view bytes) {
  if (bytes.size() > kLargestKept) return readTable(bytes);
  const std::scoped_lock lock(mutex_);
  for (const Entry& entry : entries_) {
    if (entry.bytes == bytes) return entry.table;
  }
  Entry entry{std::string(bytes), readTable(bytes)};
  if (entries_.size() < kMostEntries) return entries_.emplace_back(std::move(entry)).table;
  Entry& place = entries_[oldest_];
  oldest_ = (oldest_ + 1) % kMostEntries;
  place = std::move(entry);
  return place.table;
}

}  // namespace quorix::foundation
