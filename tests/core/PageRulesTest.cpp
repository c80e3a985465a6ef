#include "platform/webkit/PageRules.h"

#include <gtest/gtest.h>

namespace quorix {
namespace {

TEST(UserGesture, CountsOnceAndForASecond) {
  const webkit::UserGesture::Clock::time_point then{};
  webkit::UserGesture gesture;
  EXPECT_FALSE(gesture.take(then));
  for (const auto& [passed, counts] : {std::pair{999, true}, {1000, false}}) {
    gesture.happened(then);
    EXPECT_EQ(gesture.take(then + std::chrono::milliseconds(passed)), counts) << passed;
    EXPECT_FALSE(gesture.take(then)) << passed;
  }
}

struct Request {
  double at;  ///< seconds
  bool byUser;
  const char* address;
  bool leaves;
};

TEST(NewWindowLimit, LetsTheUserOutAndHoldsFloodsBack) {
  const struct {
    const char* what;
    std::vector<Request> requests;
  } pages[] = {
      {"the first one leaves to any address, later ones with a pause and to ordinary addresses",
       {{0, false, "whatsapp://send", true},
        {9.9, false, "https://a.example", false},
        {10, false, "https://a.example", true},
        {19.9, false, "https://a.example", false},
        {20, false, "whatsapp://send", false},
        {20, false, "tel:1", true},
        {30, false, "mailto:a@a.example", true},
        {40, false, "HTTP://a.example", true}}},
      {"gestures open one each, and leave nothing for a script beside them",
       {{0, true, "sms:1", true},
        {0, false, "tel:1", false},
        {1, true, "sms:1", true},
        {1, false, "tel:1", false},
        {11, false, "whatsapp://send", true},
        {12, true, "whatsapp://send", true},
        {22, false, "sms:1", false}}},
  };
  for (const auto& page : pages) {
    webkit::NewWindowLimit limit;
    for (const Request& request : page.requests) {
      const webkit::NewWindowLimit::Clock::time_point now{
          std::chrono::duration_cast<webkit::NewWindowLimit::Clock::duration>(
              std::chrono::duration<double>(request.at))};
      EXPECT_EQ(limit.allows(foundation::URL::parse(request.address).value(), request.byUser, now),
                request.leaves)
          << page.what << ": " << request.at << ' ' << request.address;
    }
  }
}

}  // namespace
}  // namespace quorix
