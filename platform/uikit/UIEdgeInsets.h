#pragma once

namespace quorix::uikit {

/// Insets by side, whatever the reading direction. Points; negative ones lead outwards.
struct UIEdgeInsets {
  double top = 0;
  double left = 0;
  double bottom = 0;
  double right = 0;
  bool operator==(const UIEdgeInsets&) const = default;
};

}  // namespace quorix::uikit
