#pragma once

#include <optional>
#include <string>

namespace quorix::foundation {

/// One "name=value" of an address's query, unescaped; without a value it is the bare name.
struct URLQueryItem {
  std::string name;
  std::optional<std::string> value;

  bool operator==(const URLQueryItem&) const = default;
};

}  // namespace quorix::foundation
