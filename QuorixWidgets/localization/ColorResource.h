#pragma once

#include "platform/swiftui/ColorResource.h"

namespace quorix {

/// The library's colour assets by symbol, each made on first read. Any thread.
struct ColorResource : swiftui::ColorResource {
  ColorResource() = delete;

  /// Secondary text: the sheet's disclaimer and logo.
  static const swiftui::ColorResource& grey1();
  /// The fee that no longer holds, struck through.
  static const swiftui::ColorResource& grey2();
};

}  // namespace quorix
