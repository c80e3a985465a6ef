#include "platform/foundation/TransferRules.h"

#include <gtest/gtest.h>

namespace quorix::testing {
namespace {

using foundation::TransferQueue;

TEST(TransferRules, RedirectsStayWithHTTPAndLeaveNoSecureConnection) {
  const struct {
    const char *from, *to;
    int count;
    std::int64_t error;
  } table[] = {
      {"http", "http", 1, 0},    {"http", "https", 20, 0}, {"https", "https", 20, 0},
      {"http", "http", 21, 10},  {"https", "http", 1, 11}, {"http", "file", 1, 301},
      {"https", "data", 1, 301}, {"http", "", 1, 301},     {"http", "qrc", 1, 301},
  };
  for (const auto& [from, to, count, error] : table) {
    const auto refusal = foundation::refuseRedirect(from, to, count);
    EXPECT_EQ(refusal ? refusal->error->code : 0, error) << from << " to " << to << ", " << count;
  }
}

TEST(TransferRules, AddressesOfBothFamiliesTakeTurns) {
  using Addresses = std::vector<std::string>;
  const std::pair<Addresses, Addresses> table[] = {
      {{"1.1.1.1", "1.1.1.2"}, {"1.1.1.1", "1.1.1.2"}},
      {{"::1", "::2", "::3", "1.1.1.1"}, {"::1", "1.1.1.1", "::2", "::3"}},
      {{"1.1.1.1", "::1", "::2", "::3", "1.1.1.2"}, {"1.1.1.1", "::1", "1.1.1.2", "::2", "::3"}},
      {Addresses(12, "::1"), Addresses(10, "::1")},
  };
  for (const auto& [addresses, order] : table) {
    EXPECT_EQ(foundation::connectionOrder(addresses), order);
  }
}

TEST(TransferQueue, SharesTransfersAndStartsSixForAServer) {
  using Tasks = std::vector<TransferQueue::Task>;
  const auto transfer = [](int i) {
    return TransferQueue::Transfer{"http://a/" + std::to_string(i), "a", std::chrono::seconds(60)};
  };
  const TransferQueue::Transfer elsewhere{"http://b/", "b", std::chrono::seconds(60)};
  const TransferQueue::Transfer hasty{"http://b/", "b", std::chrono::seconds(1)};
  TransferQueue queue;
  for (int i = 0; i < 8; ++i) queue.add(i, transfer(i));
  for (int i = 0; i < 6; ++i) EXPECT_EQ(queue.start(), transfer(i));
  EXPECT_EQ(queue.start(), std::nullopt);
  queue.add(10, transfer(1));  // runs
  queue.add(11, transfer(7));  // waits
  EXPECT_EQ(queue.start(), std::nullopt);
  queue.add(12, elsewhere);
  queue.add(13, hasty);
  EXPECT_EQ(queue.start(), elsewhere);
  EXPECT_EQ(queue.start(), hasty);

  EXPECT_EQ(queue.end(transfer(1)), (Tasks{1, 10}));
  queue.add(14, transfer(1));  // another transfer
  EXPECT_EQ(queue.start(), transfer(6));
  EXPECT_EQ(queue.end(hasty), Tasks{13});
  EXPECT_EQ(queue.start(), std::nullopt);
  EXPECT_EQ(queue.end(transfer(0)), Tasks{0});
  EXPECT_EQ(queue.start(), transfer(7));
  EXPECT_EQ(queue.end(transfer(7)), (Tasks{7, 11}));
  EXPECT_EQ(queue.start(), transfer(1));
  EXPECT_EQ(queue.end(transfer(1)), Tasks{14});
  EXPECT_EQ(queue.start(), std::nullopt);
}

}  // namespace
}  // namespace quorix::testing
