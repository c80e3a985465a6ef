#include <gmock/gmock.h>

#include "Tool.h"

TEST(ToolCommandLine, ExamplesInHelpWorkWhenPasted) {
  const Tool tool;
  for (const char* command :
       {"quorix", "quorix mint", "quorix decode", "quorix score", "quorix info", "quorix gallery",
        "quorix overlay-url", "quorix texts", "quorix strings check", "quorix completion",
        "quorix man", "quorix help"}) {
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

TEST(ToolCommandLine, IsCompletedByBash) {
  const struct {
    std::string words, offers;  // the last word is the one that is completed
  } rows[] = {
      {"quorix sco", "score "},
      {"quorix help strings", "strings "},
      {"quorix strings ''", "check "},
      {"quorix score --app", "--appearance "},
      {"quorix score --appearance ''", "light dark "},
      {"quorix score --appearance = d", "dark "},
      {"quorix gallery --language e", "en es "},
      {"quorix score --translations te", "texts.json "},
      {"quorix score --width ''", ""},
  };
  const Tool tool;
  for (const auto& row : rows) {
    const auto run = tool.shell(
        "touch texts.json; quorix completion bash > q; bash -c '. ./q; COMP_WORDS=(\"$@\"); "
        "COMP_CWORD=$(($# - 1)); _quorix; printf \"%s \" \"${COMPREPLY[@]}\"' _ " +
        row.words);
    EXPECT_EQ(run.out, row.offers.empty() ? " " : row.offers) << row.words << run.err;
  }
}
