#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <variant>

#include "platform/foundation/Export.h"

namespace quorix::foundation {

/// An expected failure: its domain, its code in that domain, and a text for developers.
struct Error {
  std::string domain;
  std::int64_t code = 0;
  std::string description;
};

/// A value, or the error that prevented it.
template <class T, class E = Error>
using Result = std::variant<T, E>;

/// Why a value could not be decoded from a document, and at which key.
struct DecodingError {
  enum class Kind {
    keyNotFound,    ///< The object does not have this key.
    typeMismatch,   ///< The value has another type.
    valueNotFound,  ///< The value is null.
    dataCorrupted,  ///< The bytes are not a valid document.
  };

  Kind kind;
  std::string key;  ///< Empty for the document itself.

  bool operator==(const DecodingError&) const = default;
};

/// Stops the process: writes "<source>: Fatal error: <message>" to the standard error stream
/// (without the source when there is none) and aborts. For a broken build of the library, never for
/// bad input.
[[noreturn]] QUORIX_EXPORT void fatalError(std::string_view message, std::string_view source = {});

}  // namespace quorix::foundation
