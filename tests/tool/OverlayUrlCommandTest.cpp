#include <gtest/gtest.h>

#include "Tool.h"

namespace {

TEST(ToolOverlayUrl, PrintsThePagesAddress) {
  const struct {
    QStringList options;
    const char* address;
  } rows[] = {
      {{}, "https://modules.quorix.example/html/overlays/info?lang"},
      {{"--locale", "nn", "--name", "Ann"},
       "https://modules.quorix.example/html/overlays/info?lang=no"},
      {{"--locale=nb", "--name", "Åsa & Bo", "--token", "-"},
       "https://widget.quorix.example/users/details/"
       "?lang=no&name=%C3%85sa%20%26%20Bo&token=a.b%3D"},
      {{"--locale=", "--token="}, "https://widget.quorix.example/users/details/?lang="},
  };
  const Tool tool;
  for (const auto& row : rows) {
    const auto run = tool.run(QStringList{"overlay-url"} + row.options, "a.b=\n");
    EXPECT_EQ(run.status, 0);
    EXPECT_EQ(run.err, "");
    EXPECT_EQ(run.out, std::string(row.address) + '\n');
  }
}

}  // namespace
