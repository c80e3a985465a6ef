#include "platform/foundation/StringsFileError.h"

#include <algorithm>

#include "platform/foundation/StringsFile.h"

namespace quorix::foundation {
namespace {

/// Counted from 1; lines end with LF, CR or both.
std::size_t lineAt(std::string_view text, std::size_t offset) {
  const std::string_view before = text.substr(0, std::min(offset, text.size()));
  std::size_t line = 1;
  for (std::size_t i = 0; i < before.size(); ++i) {
    const bool carriageReturn = before[i] == '\r' && !before.substr(i + 1).starts_with('\n');
    if (before[i] == '\n' || carriageReturn) ++line;
  }
  return line;
}

Error error(StringsFileErrorCode code, std::string_view text, std::size_t offset,
            const std::string& what) {
  return {"StringsFile", static_cast<std::int64_t>(code),
          "line " + std::to_string(lineAt(text, offset)) + ": " + what};
}

}  // namespace

Error malformedStringsFile(std::string_view text, std::size_t offset, const std::string& what) {
  return error(StringsFileErrorCode::malformed, text, offset, what);
}

Error notAStringTable(std::string_view text, std::size_t offset, const std::string& what) {
  return error(StringsFileErrorCode::notATable, text, offset, what);
}

}  // namespace quorix::foundation
