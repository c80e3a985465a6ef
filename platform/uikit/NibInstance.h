#pragma once

#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/uikit/Nib.h"
#include "platform/uikit/NibDocument.h"

namespace quorix::uikit {

/// Views made from an interface file that was read, for one owner.
class NibInstance {
 public:
  explicit NibInstance(const NibDocument& document);

  /// Why the views cannot be the owner's, from the line on ("7: ..."); then no outlet is touched.
  std::optional<std::string> connect(std::string_view owner, const Nib::Outlets& outlets);

  /// The views that stand in no other, in their order.
  Nib::Views outermost() const;

 private:
  using View = std::shared_ptr<UIView>;

  std::optional<std::string> constrain();
  View view(std::optional<std::size_t> index) const { return index ? views_[*index] : nullptr; }

  const NibDocument& document_;
  std::vector<View> views_;
};

}  // namespace quorix::uikit
