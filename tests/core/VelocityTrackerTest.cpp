#include "platform/hosting/Input.h"

#include <gtest/gtest.h>

#include <utility>
#include <vector>

namespace quorix::hosting {
namespace {

TEST(VelocityTracker, MeasuresTheLastTenthOfASecond) {
  const struct {
    const char* name;
    std::vector<std::pair<double, double>> samples;  // points, seconds
    double velocity;
  } rows[] = {
      {"nothing", {}, 0},
      {"a tap", {{10, 1}}, 0},
      {"press and release at one instant", {{10, 1}, {60, 1}}, 0},
      {"steady", {{0, 0}, {10, 0.02}, {20, 0.04}, {30, 0.06}}, 500},
      {"upwards", {{30, 0}, {0, 0.06}}, -500},
      {"slow, then a flick", {{0, 0}, {10, 0.5}, {20, 1}, {60, 1.05}}, 800},
      {"fast, then at rest", {{0, 0}, {90, 0.09}, {90, 0.6}}, 0},
  };
  for (const auto& row : rows) {
    VelocityTracker tracker;
    for (const auto& [position, seconds] : row.samples) tracker.add(position, seconds);
    EXPECT_NEAR(tracker.velocity(), row.velocity, 1e-6) << row.name;
  }
}

}  // namespace
}  // namespace quorix::hosting
