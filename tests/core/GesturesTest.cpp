#include <map>
#include <sstream>

#include "platform/hosting/Input.h"
#include "platform/hosting/PageSwipe.h"
#include "tests/core/Vectors.h"

namespace quorix::hosting {
namespace {

using Phase = PointerEvent::Phase;

std::string nameOf(SwipeDirection direction) {
  return direction == SwipeDirection::right ? "right" : "left";
}

TEST(EdgeSwipe, BeginsAtASideAndGoesInward) {
  forEachRow("gestures/edge_swipes", [](simdjson::dom::element row) {
    const simdjson::dom::array points = row["points"];
    EdgeSwipe recognizer;
    std::optional<EdgeSwipe::Swipe> swipe;
    for (std::size_t i = 0; i < points.size(); ++i) {
      const Phase phase = i == 0                   ? Phase::pressed
                          : i + 1 == points.size() ? Phase::released
                                                   : Phase::moved;
      const int fingers = i == std::uint64_t(row["secondFingerAt"]) ? 2 : 1;
      swipe = recognizer.follow({phase, ::point(points.at(i)), fingers, 300});
    }
    const std::string far = swipe && !swipe->isFar ? ", not far" : "";
    EXPECT_EQ(swipe ? nameOf(swipe->direction) + far : "none", ::text(row, "swipe"));
  });
}

TEST(TrackpadSwipe, GoesFarSidewaysWhileTheFingersAreDown) {
  const std::map<std::string, TrackpadEvent> phases = {{"begin", {true, true, 0, 0, 1}},
                                                       {"end", {false, false, 0, 0, 9}},
                                                       {"thrown", {false, false, 200, 0, 3}}};
  forEachRow("gestures/trackpad_swipes", [&](simdjson::dom::element row) {
    TrackpadSwipe recognizer;
    std::string swipes;
    std::istringstream events(::text(row, "events"));
    for (std::string word; events >> word;) {
      const std::size_t comma = word.find(',');
      const auto swipe = recognizer.follow(
          phases.contains(word)
              ? phases.at(word)
              : TrackpadEvent{false, true, std::stod(word), std::stod(word.substr(comma + 1)), 2});
      if (!swipe) continue;
      swipes += nameOf(*swipe) + std::to_string(int(recognizer.began())) + " ";
      recognizer.spend();
    }
    EXPECT_EQ(swipes, ::text(row, "swipes"));
  });
}

TEST(VelocityTracker, MeasuresTheLastTenthOfASecond) {
  forEachRow("gestures/velocities", [](simdjson::dom::element row) {
    VelocityTracker tracker;
    for (const auto sample : row["samples"]) tracker.add(sample.at(0), sample.at(1));  // in seconds
    EXPECT_NEAR(tracker.velocity(), row["velocity"], 1e-6);
  });
}

}  // namespace
}  // namespace quorix::hosting
