#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

#include "platform/foundation/Error.h"

namespace quorix::foundation {

/// Reads the words of a property list in its old text form, one after the other. Skips blanks and
/// comments before each: `// ...` and `/* ... */`; a comment without an end reaches to the end of
/// the text. Keeps the first failure. Views the text.
class PropertyListScanner {
 public:
  explicit PropertyListScanner(std::string_view text) : text_(text) {}

  bool atEnd();
  bool isNext(char mark);
  /// Moves past `mark` if it is next.
  bool take(char mark);

  /// The offset of the next word, in bytes.
  std::size_t offset();

  /// The next word, which must be a text: in single or double quotes, or unquoted if it has only
  /// letters, digits and "_$/:.-". Fails otherwise.
  std::optional<std::string> readText();
  /// Moves past bytes in hexadecimal, `<0f 1a>`. Fails otherwise.
  bool skipData();

  /// Records a failure. Returns false, so that the caller can return the result.
  bool fail(const std::string& what);
  bool failAt(std::size_t offset, const std::string& what);
  const std::optional<Error>& failure() const { return failure_; }

 private:
  void skipBlanks();
  bool skipComment();
  std::size_t blankLength() const;
  std::optional<std::string> readQuoted(char quote);

  std::string_view text_;
  std::size_t at_ = 0;
  std::optional<Error> failure_;
};

}  // namespace quorix::foundation
