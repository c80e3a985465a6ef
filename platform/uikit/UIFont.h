#pragma once

#include <memory>
#include <string>
#include <string_view>

namespace quorix::uikit {

/// A font of the imperative toolkit: a face that is known to be there, at a size that never scales.
/// An immutable object, shared by reference. Any thread.
class UIFont {
 public:
  using Ref = std::shared_ptr<const UIFont>;

  /// The face `name` at `size` points, or null when the font manager does not know the face.
  static Ref named(std::string_view name, double size);

  /// The system's font at `size` points; its name is empty.
  static Ref system(double size);

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
