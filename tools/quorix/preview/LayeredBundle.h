#pragma once

#include "platform/foundation/Bundle.h"

namespace quorix::tool {

/// One bundle over another: what both have is the upper one's. Any thread.
class LayeredBundle final : public foundation::Bundle {
 public:
  /// Neither is null.
  LayeredBundle(Ref upper, Ref lower) : upper_(std::move(upper)), lower_(std::move(lower)) {}

  std::optional<std::string> pathForResource(std::string_view name,
                                             std::string_view type) const override;
  std::optional<foundation::Data> data(const std::string& path) const override;
  Ref folder(const std::string& path) const override;
  std::vector<std::string> folders(const std::string& path) const override;

 private:
  Ref upper_;
  Ref lower_;
};

}  // namespace quorix::tool
