#pragma once

#include <string>

#include "platform/foundation/Bundle.h"

namespace quorix::swiftui {

/// The name of a color set, and the bundle with its catalog (null: the host's main bundle).
struct ColorResource {
  std::string name;
  foundation::Bundle::Ref bundle;

  bool operator==(const ColorResource&) const = default;
};

/// The name of an image set, and the bundle with its catalog (null: the host's main bundle).
struct ImageResource {
  std::string name;
  foundation::Bundle::Ref bundle;

  bool operator==(const ImageResource&) const = default;
};

}  // namespace quorix::swiftui
