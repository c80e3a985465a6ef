#include <gtest/gtest.h>

#include <string>

#include "platform/hosting/Input.h"
#include "platform/hosting/PageSwipe.h"

namespace quorix::hosting {
namespace {

using Phase = PointerEvent::Phase;
using layout::Point;

std::string nameOf(SwipeDirection direction) {
  return direction == SwipeDirection::right ? "right" : "left";
}

/// The swipe that a finger makes along `points`, on a page 300 points wide.
std::string swipeOf(const std::vector<Point>& points, std::size_t secondFingerAt) {
  EdgeSwipe recognizer;
  std::optional<EdgeSwipe::Swipe> swipe;
  for (std::size_t i = 0; i < points.size(); ++i) {
    const Phase phase = i == 0                   ? Phase::pressed
                        : i + 1 == points.size() ? Phase::released
                                                 : Phase::moved;
    swipe = recognizer.follow({phase, points[i], i == secondFingerAt ? 2 : 1, 300});
  }
  if (!swipe) return "none";
  return nameOf(swipe->direction) + (swipe->isFar ? "" : ", not far");
}

TEST(EdgeSwipe, BeginsAtASideAndGoesInward) {
  const struct {
    const char* name;
    std::vector<Point> points;
    std::string swipe;
    std::size_t secondFingerAt = 99;
  } rows[] = {
      {"from the left", {{5, 100}, {30, 104}, {80, 110}, {80, 110}}, "right"},
      {"from the right", {{295, 100}, {250, 104}, {200, 110}, {200, 110}}, "left"},
      {"steep at last", {{5, 100}, {30, 104}, {80, 300}, {80, 300}}, "right"},
      {"and back again", {{5, 100}, {100, 100}, {30, 100}, {30, 100}}, "right, not far"},
      {"from the middle", {{50, 100}, {80, 104}, {180, 110}, {180, 110}}, "none"},
      {"outward", {{15, 100}, {2, 100}, {80, 100}, {80, 100}}, "none"},
      {"a scroll", {{5, 100}, {15, 120}, {90, 120}, {90, 120}}, "none"},
      {"two fingers for a while", {{5, 100}, {30, 104}, {80, 110}, {90, 110}}, "none", 1},
  };
  for (const auto& row : rows) {
    EXPECT_EQ(swipeOf(row.points, row.secondFingerAt), row.swipe) << row.name;
  }
}

TEST(TrackpadSwipe, GoesFarSidewaysWhileTheFingersAreDown) {
  constexpr TrackpadEvent begin{true, true, 0, 0, 1}, end{false, false, 0, 0, 9};
  const auto moved = [](double x, double y) { return TrackpadEvent{false, true, x, y, 2}; };
  const auto thrown = [](double x) { return TrackpadEvent{false, false, x, 0, 3}; };
  const struct {
    const char* name;
    std::vector<TrackpadEvent> events;
    std::string swipes;
  } rows[] = {
      {"right", {begin, moved(50, 5), moved(50, 5), end}, "right1 "},
      {"left", {begin, moved(-50, 5), moved(-50, 5), end}, "left1 "},
      {"without a beginning", {end, moved(90, 0), end}, "right2 "},
      {"on and on", {begin, moved(90, 0), moved(200, 0), end}, "right1 "},
      {"twice", {begin, moved(90, 0), end, begin, moved(90, 0)}, "right1 right1 "},
      {"short", {begin, moved(50, 5), end, begin, moved(50, 5)}, ""},
      {"and back again", {begin, moved(50, 0), moved(-50, 0), moved(50, 0)}, ""},
      {"steep", {begin, moved(90, 60), moved(90, 60), end}, ""},
      {"thrown", {begin, moved(50, 0), end, thrown(200), end}, ""},
  };
  for (const auto& row : rows) {
    TrackpadSwipe recognizer;
    std::string swipes;
    for (const TrackpadEvent& event : row.events) {
      const auto swipe = recognizer.follow(event);
      if (!swipe) continue;
      swipes += nameOf(*swipe) + std::to_string(int(recognizer.began())) + " ";
      recognizer.spend();
    }
    EXPECT_EQ(swipes, row.swipes) << row.name;
  }
}

TEST(VelocityTracker, MeasuresTheLastTenthOfASecond) {
  const struct {
    const char* name;
    std::vector<std::pair<double, double>> samples;  // points, seconds
    double velocity;
  } rows[] = {
      {"a tap", {{10, 1}}, 0},
      {"press and release at one instant", {{10, 1}, {60, 1}}, 0},
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
