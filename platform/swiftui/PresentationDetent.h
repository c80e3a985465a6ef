#pragma once

#include <algorithm>
#include <array>
#include <cstddef>
#include <initializer_list>
#include <limits>
#include <optional>

namespace quorix::swiftui {

/// A height at which a sheet may rest: half of the available height, or a number of points.
class PresentationDetent {
 public:
  static PresentationDetent medium() { return PresentationDetent(half); }
  static PresentationDetent height(double points) { return PresentationDetent(points); }

  /// The height in points; absent for the medium detent.
  std::optional<double> points() const {
    return points_ == half ? std::nullopt : std::optional(points_);
  }

  auto operator<=>(const PresentationDetent&) const = default;

 private:
  static constexpr double half = -std::numeric_limits<double>::infinity();

  explicit PresentationDetent(double points) : points_(points) {}

  double points_;
};

/// A set of detents: medium first, then heights from the lowest. Keeps the lowest four, because a
/// sheet rests at its lowest detent.
class PresentationDetents {
 public:
  PresentationDetents() = default;
  PresentationDetents(std::initializer_list<PresentationDetent> detents) {
    for (const PresentationDetent& detent : detents) insert(detent);
  }

  const PresentationDetent* begin() const { return detents_.data(); }
  const PresentationDetent* end() const { return detents_.data() + count_; }
  bool empty() const { return count_ == 0; }

  bool operator==(const PresentationDetents& other) const {
    return std::equal(begin(), end(), other.begin(), other.end());
  }

 private:
  void insert(const PresentationDetent& detent) {
    auto* const data = detents_.data();
    auto* const place = std::lower_bound(data, data + count_, detent);
    if (place == data + kMost || (place != data + count_ && *place == detent)) return;
    count_ = std::min(count_ + 1, kMost);
    std::copy_backward(place, data + count_ - 1, data + count_);
    *place = detent;
  }

  static constexpr std::size_t kMost = 4;
  std::array<PresentationDetent, kMost> detents_{
      PresentationDetent::medium(), PresentationDetent::medium(), PresentationDetent::medium(),
      PresentationDetent::medium()};
  std::size_t count_ = 0;
};

}  // namespace quorix::swiftui
