#include "platform/uikit/URLOpener.h"

#include <gtest/gtest.h>

#include <vector>

#include "tests/core/OpenedAddresses.h"
#include "tests/core/Vectors.h"

using quorix::foundation::URL;
using quorix::testing::OpenedAddresses;
using quorix::uikit::URLOpener;

namespace {

TEST(URLOpener, OpensOnlyWhatLeavesTheMachineAndRunsNoScript) {
  const OpenedAddresses asked;
  std::vector<std::string> opened;
  for (const std::string& line : readLines("outside_addresses")) {
    SCOPED_TRACE(line);
    const std::string outcome = line.substr(0, line.find(' '));
    const std::string address = line.substr(outcome.size() + 1);
    const auto url = URL::parse(address);
    ASSERT_EQ(url.has_value(), outcome != "unreadable");
    if (!url) continue;
    EXPECT_EQ(URLOpener::openOutside(*url), outcome == "opens");
    if (outcome == "opens") opened.push_back(address);
  }
  EXPECT_FALSE(opened.empty());
  EXPECT_EQ(asked.list(), opened);
}

TEST(URLOpener, OpensNothingWithoutAnOpener) {
  const OpenedAddresses asked;  // which puts things right afterwards
  URLOpener::install(nullptr);
  EXPECT_FALSE(URLOpener::openOutside(*URL::parse("https://shop.example")));
}

}  // namespace
