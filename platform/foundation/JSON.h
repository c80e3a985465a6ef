#pragma once

#include <cstdint>
#include <map>
#include <memory>
#include <optional>
#include <string_view>
#include <vector>

#include "platform/foundation/Result.h"

namespace quorix::foundation {

/// A value inside a `JSONDocument`, usable until that document reads again or goes away. A view:
/// cheap to copy, and so are the texts it hands out.
class JSONValue {
 public:
  enum class Kind : std::uint8_t { null, boolean, number, string, array, object };

  Kind kind() const;

  /// The nearest double; true and false count as 1 and 0.
  std::optional<double> number() const;
  /// The number when it is a signed 64-bit integer exactly, however it is spelled (499, 499.0,
  /// 4.99e2); true and false count as 1 and 0.
  std::optional<std::int64_t> integer() const;
  std::optional<std::string_view> string() const;

  /// An object's member. Of several with one key the last counts, here and in `members`.
  std::optional<JSONValue> member(std::string_view key) const;
  /// An object's members by key; empty for anything else.
  std::map<std::string_view, JSONValue> members() const;
  /// An array's elements in order; empty for anything else.
  std::vector<JSONValue> elements() const;

 private:
  friend class JSONDocument;
  struct Node;
  explicit JSONValue(const Node* node) : node_(node) {}
  template <class Visit>
  void forEachChild(Visit visit) const;
  const Node* node_;
};

/// Reads JSON documents, one after the other, into memory that it keeps: a reused document reads a
/// small text without allocating. One thread at a time.
///
///     JSONDocument document;
///     const auto read = document.parse(bytes);
///     if (const auto* value = std::get_if<JSONValue>(&read)) value->member("name");
class JSONDocument {
 public:
  /// The codes of `parse`'s errors, whose domain is "JSON".
  enum class ErrorCode : std::int64_t { malformed = 1, tooDeep = 2 };

  JSONDocument();
  JSONDocument(JSONDocument&&) noexcept;
  JSONDocument& operator=(JSONDocument&&) noexcept;
  ~JSONDocument();

  /// The object or array that `bytes` spell. Strict RFC 8259 in UTF-8 throughout, also where no one
  /// looks; a byte order mark is skipped; numbers beyond the double range and nesting beyond 600
  /// containers are refused.
  Result<JSONValue> parse(std::string_view bytes);

 private:
  struct State;
  std::unique_ptr<State> state_;
};

}  // namespace quorix::foundation
