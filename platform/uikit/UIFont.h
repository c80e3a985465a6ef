#pragma once

#include <memory>
#include <string>
#include <string_view>

#include "platform/graphics/FontManager.h"

namespace quorix::uikit {

/// A font of the imperative toolkit: a face that exists, at a size that does not scale with the
/// user's text size. An immutable object, shared by reference. Any thread.
class UIFont {
 public:
  using Ref = std::shared_ptr<const UIFont>;

  /// The face `name` at `size` points, or null when the font manager does not know the face.
  static Ref named(std::string_view name, double size) {
    return graphics::FontManager::shared().knows(name) ? Ref(new UIFont(name, size)) : nullptr;
  }

  /// The system's font at `size` points; its name is empty.
  static Ref system(double size) { return Ref(new UIFont({}, size)); }

  const std::string& name() const { return name_; }
  /// Points.
  double pointSize() const { return pointSize_; }

  bool operator==(const UIFont&) const = default;

 private:
  UIFont(std::string_view name, double size) : name_(name), pointSize_(size) {}

  std::string name_;
  double pointSize_;
};

}  // namespace quorix::uikit
