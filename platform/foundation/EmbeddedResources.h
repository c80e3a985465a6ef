#pragma once

#include <cstddef>
#include <span>
#include <string_view>

namespace quorix::foundation {

/// A file that the build compiled into the library. The bytes live as long as the process.
struct EmbeddedFile {
  std::string_view path;  ///< relative to the resource folder, with "/" between its parts
  const unsigned char* bytes;
  std::size_t size;
};

/// Every file of the resource folder, in no particular order. The build writes the definition.
std::span<const EmbeddedFile> embeddedFiles();

}  // namespace quorix::foundation
