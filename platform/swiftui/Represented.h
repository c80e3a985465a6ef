#pragma once

#include <functional>
#include <memory>
#include <string_view>

#include "platform/foundation/Export.h"
#include "platform/render/HostedContent.h"
#include "platform/swiftui/View.h"

namespace quorix::swiftui {

/// Content of another toolkit in a view tree.
struct Represented {
  std::string_view name;
  std::function<std::shared_ptr<render::HostedContent>()> make;  ///< once for each place in a tree
  /// At each evaluation, the first included; may be empty.
  std::function<void(render::HostedContent&)> update = {};
};

QUORIX_EXPORT View represented(Represented content);

}  // namespace quorix::swiftui
