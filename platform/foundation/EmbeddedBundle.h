#pragma once

#include <map>
#include <span>

#include "platform/foundation/Bundle.h"
#include "platform/foundation/EmbeddedResources.h"

namespace quorix::foundation {

/// A bundle over a table of files in memory that lives as long as the process.
class EmbeddedBundle final : public Bundle {
 public:
  explicit EmbeddedBundle(std::span<const EmbeddedFile> files);

  std::optional<std::string> pathForResource(std::string_view name,
                                             std::string_view type) const override;
  std::optional<Data> data(const std::string& path) const override;
  Ref folder(const std::string& path) const override;
  std::vector<std::string> folders(const std::string& path) const override;

 private:
  using Table = std::map<std::string_view, Data>;
  EmbeddedBundle(std::shared_ptr<const Table> table, std::string prefix);
  bool hasFolder(const std::string& path) const;

  std::shared_ptr<const Table> table_;
  std::string prefix_;  // "" or a path that ends in "/"
};

}  // namespace quorix::foundation
