#pragma once

#include "platform/swiftui/ImageResource.h"

namespace quorix {

/// The library's image assets by symbol, each made on first read. Any thread.
struct ImageResource : swiftui::ImageResource {
  ImageResource() = delete;

  /// The cross of the close buttons. It has a look of its own for each appearance.
  static const swiftui::ImageResource& close();
};

}  // namespace quorix
