#pragma once

#include <algorithm>
#include <cstddef>
#include <iterator>
#include <list>
#include <memory>
#include <mutex>
#include <string_view>
#include <unordered_map>
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

  void clear() {
    const std::scoped_lock lock(mutex_);
    entries_.clear();
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

/// The entries of a cache that were used last, up to a bound, found by a hash. A new entry takes
/// over the oldest one's memory. For large caches of one thread; `Cache` is simpler.
///
///     RecentEntries<Word> words(256);
///     Word* word = words.find(hash, [&](const Word& known) { return known.text == text; });
///     if (!word) (word = &words.add(hash))->text = text;
template <class Entry>
class RecentEntries {
 public:
  explicit RecentEntries(std::size_t most) : most_(most) {}

  std::size_t size() const { return nodes_.size(); }

  /// Finds an entry of `hash` that `matches` accepts, and marks it as used last; null without one.
  template <class Matches>
  Entry* find(std::size_t hash, Matches matches) {
    const auto [first, last] = index_.equal_range(hash);
    for (auto row = first; row != last; ++row) {
      if (!matches(std::as_const(row->second->entry))) continue;
      nodes_.splice(nodes_.begin(), nodes_, row->second);
      return &nodes_.front().entry;
    }
    return nullptr;
  }

  /// Adds an entry, marked as used last. A full cache reuses the oldest entry with its content:
  /// overwrite it.
  Entry& add(std::size_t hash) {
    if (nodes_.size() < most_) {
      nodes_.emplace_front();
      index_.emplace(hash, nodes_.begin());
    } else {
      const auto oldest = std::prev(nodes_.end());
      auto row = index_.extract(rowOf(oldest));
      row.key() = hash;
      index_.insert(std::move(row));
      nodes_.splice(nodes_.begin(), nodes_, oldest);
    }
    nodes_.front().hash = hash;
    return nodes_.front().entry;
  }

  const Entry& oldest() const { return nodes_.back().entry; }

  void dropOldest() {
    index_.erase(rowOf(std::prev(nodes_.end())));
    nodes_.pop_back();
  }

  void clear() {
    index_.clear();
    nodes_.clear();
  }

 private:
  struct Node {
    std::size_t hash = 0;
    Entry entry{};
  };
  using Nodes = std::list<Node>;
  using Index = std::unordered_multimap<std::size_t, typename Nodes::iterator>;

  typename Index::iterator rowOf(typename Nodes::iterator node) {
    const auto [first, last] = index_.equal_range(node->hash);
    return std::find_if(first, last, [&](const auto& row) { return row.second == node; });
  }

  const std::size_t most_;
  Nodes nodes_;  ///< the one used last comes first
  Index index_;
};

}  // namespace quorix::foundation
