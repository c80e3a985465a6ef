#pragma once

#include <string>
#include <vector>

#include "platform/foundation/Export.h"
#include "platform/foundation/StringTable.h"

namespace quorix {

/// Something that a translator should put right in a "Localizable" table.
struct StringTableProblem {
  std::string key;
  std::string what;  ///< "is missing"
};

/// All that is wrong with `table`: entries that the widgets ask for and do not find, entries that
/// nobody asks for, formats that do not show exactly the argument they get, and a title that its
/// figure does not part in two. Any thread.
QUORIX_EXPORT std::vector<StringTableProblem> problems(const foundation::StringTable& table);

}  // namespace quorix
