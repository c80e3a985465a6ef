#pragma once

#include <cstdint>
#include <string>

namespace quorix::foundation {

/// An expected failure: its source, its number there, and a text for developers.
struct Error {
  std::string domain;
  std::int64_t code = 0;
  std::string description;
};

}  // namespace quorix::foundation
