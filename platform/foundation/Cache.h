#pragma once

#include <algorithm>
#include <cstddef>
#include <memory>
#include <mutex>
#include <string_view>
#include <utility>
#include <vector>

#include "platform/foundation/Data.h"

namespace quorix::foundation {

/// Keeps the values of the keys that were used last, up to a bound. Searches its few keys one by
/// one. Any thread.
///
///     static Cache<std::string, int> lengths(4);
///     lengths.get(word, [&] { return measure(word); });
template <class Key, class Value>
class Cache {
 public:
  explicit Cache(std::size_t most) : most_(most) {}

  /// The value of `key`, which `make` makes if it is not kept. `make` must not use this cache.
  template <class Make>
  Value get(const Key& key, Make make) {
    const std::scoped_lock lock(mutex_);
    auto found = std::ranges::find_if(entries_, [&](const auto& e) { return e.first == key; });
    if (found == entries_.end()) {
      std::pair<Key, Value> made(key, make());
      if (entries_.size() >= most_) entries_.pop_back();
      found = entries_.insert(entries_.end(), std::move(made));
    }
    std::rotate(entries_.begin(), found, found + 1);
    return entries_.front().second;
  }

 private:
  const std::size_t most_;
  std::mutex mutex_;
  std::vector<std::pair<Key, Value>> entries_;  // the one used last comes first
};

/// Caches a parser's results for files of one kind by their bytes, so a changed file is parsed
/// again. Comparing is much faster than parsing. Any thread.
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

  /// The result of `parse` for `file`. Files beyond 64 KiB are not kept.
  Ref read(const Data& file) {
    if (file.size() > largestKept) return parse_(file);
    return files_.get(file, [&] { return parse_(file); });
  }

 private:
  static constexpr std::size_t largestKept = 65'536;  // bytes

  const Parse parse_;
  Cache<Data, Ref> files_{4};  // a screen uses one language or two
};

}  // namespace quorix::foundation
