#pragma once

#include <string>

#include "platform/foundation/Bundle.h"

namespace quorix::swiftui {

/// The name of a colour set and the bundle whose catalogue has it (null: the host's main bundle).
struct ColorResource {
  std::string name;
  foundation::Bundle::Ref bundle;

  bool operator==(const ColorResource&) const = default;
};

}  // namespace quorix::swiftui
