#pragma once

#include <map>
#include <memory>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "platform/foundation/EmbeddedBundle.h"

namespace quorix::testing {

/// A bundle over `files` (path to contents). Data read from it is valid while the bundle lives.
inline foundation::Bundle::Ref memoryBundle(std::map<std::string, std::string> files) {
  struct Holder {
    std::map<std::string, std::string> files;
    std::optional<foundation::EmbeddedBundle> bundle;
  };
  auto holder = std::make_shared<Holder>();
  holder->files = std::move(files);
  std::vector<foundation::EmbeddedFile> table;
  for (const auto& [path, text] : holder->files) {
    table.push_back({path, reinterpret_cast<const unsigned char*>(text.data()), text.size()});
  }
  holder->bundle.emplace(table);
  return {holder, &*holder->bundle};
}

}  // namespace quorix::testing
