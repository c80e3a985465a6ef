#pragma once

#include <cstddef>
#include <span>
#include <string_view>
#include <utility>

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

/// Two bundles, one over the other: a file that both have is read from the upper one. Any thread.
class LayeredBundle final : public Bundle {
 public:
  /// Neither is null.
  LayeredBundle(Ref upper, Ref lower) : upper_(std::move(upper)), lower_(std::move(lower)) {}

  std::optional<std::string> pathForResource(std::string_view name,
                                             std::string_view type) const override;
  std::optional<Data> data(const std::string& path) const override;
  Ref folder(const std::string& path) const override;
  std::vector<std::string> folders(const std::string& path) const override;

 private:
  Ref upper_;
  Ref lower_;
};

}  // namespace quorix::foundation
