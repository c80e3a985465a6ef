#pragma once

#include <filesystem>

#include "platform/foundation/Bundle.h"

namespace quorix::foundation {

/// A bundle over a folder on disk. Nothing outside the folder can be read through it, not by a
/// symbolic link either.
class FolderBundle final : public Bundle {
 public:
  /// The folder at `path`, or null when there is none.
  static Ref open(const std::filesystem::path& path);

  std::optional<std::string> pathForResource(std::string_view name,
                                             std::string_view type) const override;
  std::optional<Data> data(const std::string& path) const override;
  Ref folder(const std::string& path) const override;
  std::vector<std::string> folders(const std::string& path) const override;

 private:
  explicit FolderBundle(std::filesystem::path root) : root_(std::move(root)) {}
  std::optional<std::filesystem::path> locate(const std::string& path) const;

  std::filesystem::path root_;  // canonical
};

}  // namespace quorix::foundation
