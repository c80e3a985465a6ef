#pragma once

#include <cstdint>
#include <map>
#include <memory>
#include <optional>
#include <string_view>
#include <vector>

#include "platform/foundation/Error.h"
#include "platform/foundation/Export.h"

namespace quorix::foundation {

/// A view of a value inside a `JSONDocument`. The value and its texts are valid until that document
/// parses again or is destroyed. Cheap to copy.
class QUORIX_EXPORT JSONValue {
 public:
  enum class Kind : std::uint8_t { null, boolean, number, string, array, object };

  Kind kind() const;

  /// The nearest double; true and false count as 1 and 0.
  std::optional<double> number() const;
  /// The number if it is exactly a signed 64-bit integer, in any spelling (499, 499.0, 4.99e2);
  /// true and false count as 1 and 0.
  std::optional<std::int64_t> integer() const;
  std::optional<std::string_view> string() const;

  /// An object's member. If a key occurs several times, the last one counts, here and in `members`.
  std::optional<JSONValue> member(std::string_view key) const;
  /// An object's members by key; empty for anything else.
  std::map<std::string_view, JSONValue> members() const;
  /// An array's elements in order; empty for anything else.
  std::vector<JSONValue> elements() const;

 private:
  friend class JSONDocument;
  struct QUORIX_HIDDEN Node;
  explicit JSONValue(const Node* node) : node_(node) {}
  template <class Visit>
  void forEachChild(Visit visit) const;
  const Node* node_;
};

/// Parses JSON documents one after the other. Keeps its memory, so a reused document parses a small
/// text without allocating. One thread at a time.
///
///     JSONDocument document;
///     const auto read = document.parse(answer);
///     if (const auto* value = std::get_if<JSONValue>(&read)) value->member("name");
class QUORIX_EXPORT JSONDocument {
 public:
  /// The codes of `parse`'s errors, whose domain is "JSON".
  enum class ErrorCode : std::int64_t { malformed = 1, tooDeep = 2 };

  JSONDocument();
  JSONDocument(JSONDocument&&) noexcept;
  JSONDocument& operator=(JSONDocument&&) noexcept;
  ~JSONDocument();

  /// Parses the object or array in `bytes`. Checks the whole document against RFC 8259 in UTF-8,
  /// also the values that are not read. Skips a byte order mark. Fails for numbers beyond the
  /// double range and for nesting beyond 600 containers.
  Result<JSONValue> parse(std::string_view bytes);

 private:
  struct QUORIX_HIDDEN State;
  std::unique_ptr<State> state_;
};

}  // namespace quorix::foundation
