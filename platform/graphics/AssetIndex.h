#pragma once

#include <map>
#include <optional>
#include <string>
#include <string_view>

#include "platform/foundation/Bundle.h"

namespace quorix::graphics {

/// Where each asset of a bundle's catalogue lies: "name.kind" to the asset's folder.
class AssetIndex {
 public:
  /// Walks the catalogue of `bundle`. Of two assets of one name the first in folder order counts.
  explicit AssetIndex(const foundation::Bundle& bundle);

  /// The folder of the asset `name` of `kind` ("colorset"), a path inside the bundle.
  std::optional<std::string> folder(std::string_view name, std::string_view kind) const;

 private:
  void add(const foundation::Bundle& bundle, const std::string& folder, const std::string& prefix,
           int depth);
  std::map<std::string, std::string> folders_;
};

}  // namespace quorix::graphics
