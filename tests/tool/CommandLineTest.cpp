#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "Tool.h"

using testing::HasSubstr;
using testing::StartsWith;

namespace {

struct Wrong {
  QStringList words;
  const char* says;
};

// No row gets as far as looking at its token.
const Wrong wrongLines[] = {
    {{}, "no command"},
    {{"paint"}, "unknown command \"paint\""},
    {{"mint", "more"}, "unexpected argument \"more\""},
    {{"mint", "--score"}, "--score wants a value"},
    {{"mint", "--score", "--base", "1"}, "--score wants a value"},
    {{"mint", "--score", "high"}, "--score wants a number"},
    {{"mint", "--score", "nan"}, "--score wants a number"},
    {{"mint", "--base", "4.99"}, "--base wants a whole number"},
    {{"mint", "--base", "9223372036854775808"}, "--base wants a whole number"},
    {{"decode"}, "TOKEN is missing"},
    {{"decode", "a.b", "c.d"}, "unexpected argument \"c.d\""},
    {{"strings"}, "unknown command \"strings\""},
    {{"strings", "check", "a", "b"}, "unexpected argument \"b\""},
    {{"score"}, "--token is missing"},
    {{"score", "--token", "a.b", "--widht", "3"}, "unknown option \"--widht\""},
    {{"score", "--token", "a.b", "--sheet=yes"}, "--sheet takes no value"},
    {{"score", "--token", "a.b", "--width", "0"}, "--width wants a number from 1 to 10000"},
    {{"score", "--token", "a.b", "--width", "nan"}, "--width wants"},
    {{"score", "--token", "a.b", "--width", "375pt"}, "--width wants"},
    {{"score", "--token", "a.b", "--width="}, "--width wants"},
    {{"score", "--token", "a.b", "--height", "0"}, "--height wants"},
    {{"score", "--token", "a.b", "--scale", "0"}, "--scale wants"},
    {{"score", "--token", "a.b", "--appearance", "dim"}, "--appearance wants light or dark"},
    {{"score", "--token", "a.b", "--direction", "up"}, "--direction wants ltr or rtl"},
    {{"score", "--token", "a.b", "--text-size", "huge"}, "--text-size knows no \"huge\""},
    {{"score", "--token", "a.b", "--out", "row.jpg"}, "--out wants a file that ends in .png"},
    {{"overlay-url", "en"}, "unexpected argument \"en\""},
    {{"overlay-url", "--locale"}, "--locale wants a value"},
    {{"score", "--token", "a.b", "--json", "--tree"}, "--tree has no JSON form"},
    {{"score", "--token", "a.b", "--json", "--out", "a.png"}, "--json wants"},
};

TEST(ToolCommandLine, AWrongOneIsRefusedInOneLine) {
  const Tool tool;
  for (const Wrong& wrong : wrongLines) {
    SCOPED_TRACE(wrong.words.join(' ').toStdString());
    const auto run = tool.run(wrong.words);
    EXPECT_EQ(run.status, 2);
    EXPECT_EQ(run.out, "");
    EXPECT_TRUE(isOneErrorLine(run.err)) << run.err;
    EXPECT_THAT(run.err, HasSubstr(wrong.says));
    EXPECT_THAT(run.err, HasSubstr("--help\""));
  }
}

TEST(ToolCommandLine, HelpNeedsNothingElseToBeRight) {
  const Tool tool;
  for (const QStringList& words : {QStringList{"--help"},
                                   {"score", "--help"},
                                   {"score", "-h"},
                                   {"decode", "--nonsense", "--help"},
                                   {"mint", "--help"}}) {
    SCOPED_TRACE(words.join(' ').toStdString());
    const auto run = tool.run(words);
    EXPECT_EQ(run.status, 0);
    EXPECT_EQ(run.err, "");
    EXPECT_THAT(run.out, HasSubstr("Usage: quorix "));
  }
  EXPECT_THAT(tool.run({"--version"}).out, StartsWith("quorix "));
}

TEST(ToolCommandLine, ExamplesInHelpWorkWhenPasted) {
  const Tool tool;
  for (const QStringList& words : {QStringList{"--help"},
                                   {"mint", "--help"},
                                   {"decode", "--help"},
                                   {"score", "--help"},
                                   {"overlay-url", "--help"},
                                   {"strings", "check", "--help"}}) {
    const std::string help = tool.run(words).out;
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

TEST(ToolCommandLine, AnOutputThatCannotBeWrittenIsNoSuccess) {
  const auto run = Tool().shell("quorix mint > /dev/full");
  EXPECT_EQ(run.status, 1);
  EXPECT_TRUE(isOneErrorLine(run.err)) << run.err;
}

}  // namespace
