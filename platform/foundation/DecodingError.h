#pragma once

#include <string>

namespace quorix::foundation {

/// Why a value could not be decoded from a document, and at which key.
struct DecodingError {
  enum class Kind {
    keyNotFound,    ///< The object has no such key.
    typeMismatch,   ///< There is a value, of another type.
    valueNotFound,  ///< The value is null.
    dataCorrupted,  ///< The bytes are no document.
  };

  Kind kind;
  std::string key;  ///< Empty for the document itself.

  bool operator==(const DecodingError&) const = default;
};

}  // namespace quorix::foundation
