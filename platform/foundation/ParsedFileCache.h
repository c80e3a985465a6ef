#pragma once

#include <cstddef>
#include <memory>
#include <mutex>
#include <string_view>
#include <utility>
#include <vector>

#include "platform/foundation/Data.h"

namespace quorix::foundation {

/// The files of one kind that were read last, each beside the bytes that it was read from: a
/// look-up compares bytes, which is far quicker than reading them, and a file that has changed is
/// read at once. Any thread.
///
///     static auto& cache = *new ParsedFileCache<StringTable>(readTable);
///     const auto table = cache.read(*bundle.data("Localizable.strings"));
template <class Value>
class ParsedFileCache {
 public:
  using Ref = std::shared_ptr<const Value>;
  using Parse = Ref (*)(std::string_view bytes);

  /// `parse` never throws.
  explicit ParsedFileCache(Parse parse) : parse_(parse) {}

  /// What `parse` makes of the bytes, however many there are; files beyond 64 KiB are not kept.
  Ref read(const Data& file) {
    if (file.size() > kLargestKept) return parse_(file);
    const std::scoped_lock lock(mutex_);
    for (const Entry& entry : entries_) {
      if (entry.file == file) return entry.value;
    }
    Entry entry{file, parse_(file)};
    if (entries_.size() < kMostEntries) return entries_.emplace_back(std::move(entry)).value;
    Entry& place = entries_[oldest_];
    oldest_ = (oldest_ + 1) % kMostEntries;
    place = std::move(entry);
    return place.value;
  }

 private:
  struct Entry {
    Data file;
    Ref value;
  };

  static constexpr std::size_t kMostEntries = 4;       // a screen speaks one language, or two
  static constexpr std::size_t kLargestKept = 65'536;  // bytes

  const Parse parse_;
  std::mutex mutex_;
  std::vector<Entry> entries_;
  std::size_t oldest_ = 0;
};

}  // namespace quorix::foundation
