#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "Tool.h"

TEST(ToolCommandLine, ExamplesInHelpWorkWhenPasted) {
  const Tool tool;
  for (const char* command :
       {"quorix", "quorix mint", "quorix decode", "quorix score", "quorix info", "quorix gallery",
        "quorix overlay-url", "quorix strings check"}) {
    const std::string help = tool.shell(command + std::string(" --help")).out;
    const std::string heading = "\nExample:\n";
    const std::size_t at = help.find(heading);
    ASSERT_NE(at, std::string::npos) << help;
    std::string example = help.substr(at + heading.size());
    example.resize(example.find('\n'));
    SCOPED_TRACE(example);
    const auto run = tool.shell(example);
    EXPECT_EQ(run.status, 0);
    EXPECT_EQ(run.err, "");
  }
}
