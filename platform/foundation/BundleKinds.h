#pragma once

#include <cstddef>
#include <span>
#include <string_view>

#include "platform/foundation/Bundle.h"

namespace quorix::foundation {

/// A file that the build compiled into the library. The bytes live as long as the process.
struct EmbeddedFile {
  std::string_view path;  ///< relative to the resource folder, with "/" between its parts
  const unsigned char* bytes;
  std::size_t size;
};

/// All files of the resource folder, in no particular order. The build writes the definition.
std::span<const EmbeddedFile> embeddedFiles();

/// `upper` over `lower`: a file that both have is read from `upper`. One of them if the other is
/// null. Any thread.
Bundle::Ref layered(Bundle::Ref upper, Bundle::Ref lower);

}  // namespace quorix::foundation
