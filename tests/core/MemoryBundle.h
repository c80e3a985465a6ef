#pragma once

#include <map>
#include <string>
#include <utility>

#include "platform/foundation/Bundle.h"

namespace quorix::testing {

/// A bundle over `files` (path to contents).
inline foundation::Bundle::Ref memoryBundle(const std::map<std::string, std::string>& files) {
  std::map<std::string, foundation::Data> table;
  for (const auto& [path, text] : files) table.emplace(path, text);
  return foundation::Bundle::of(std::move(table));
}

}  // namespace quorix::testing
