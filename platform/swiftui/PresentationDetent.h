#pragma once

#include <compare>
#include <optional>
#include <set>

namespace quorix::swiftui {

/// A height at which a sheet may rest: half of what is available, or a number of points.
class PresentationDetent {
 public:
  static PresentationDetent medium() { return PresentationDetent(std::nullopt); }
  static PresentationDetent height(double points) { return PresentationDetent(points); }

  /// The height of a height detent.
  std::optional<double> points() const { return points_; }

  auto operator<=>(const PresentationDetent&) const = default;

 private:
  explicit PresentationDetent(std::optional<double> points) : points_(points) {}
  std::optional<double> points_;
};

using PresentationDetents = std::set<PresentationDetent>;

}  // namespace quorix::swiftui
