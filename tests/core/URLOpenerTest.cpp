#include "platform/uikit/URLOpener.h"

#include <gtest/gtest.h>

#include <vector>

#include "tests/core/Vectors.h"

using quorix::foundation::URL;
using quorix::uikit::URLOpener;

namespace {

class Recorder final : public URLOpener {
 public:
  void open(const URL& url) override { opened.push_back(url.absoluteString()); }
  std::vector<std::string> opened;
};

class URLOpenerTest : public testing::Test {
 protected:
  ~URLOpenerTest() override { URLOpener::install(before_); }
  std::shared_ptr<Recorder> recorder_ = std::make_shared<Recorder>();
  std::shared_ptr<URLOpener> before_ = URLOpener::install(recorder_);
};

TEST_F(URLOpenerTest, OpensOnlyWhatLeavesTheMachineAndRunsNoScript) {
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
  EXPECT_EQ(recorder_->opened, opened);
}

TEST_F(URLOpenerTest, OpensNothingWithoutAnOpener) {
  URLOpener::install(nullptr);
  EXPECT_FALSE(URLOpener::openOutside(*URL::parse("https://shop.example")));
}

}  // namespace
