#include <gmock/gmock.h>

#include <QDir>

#include <fstream>

#include "../qt/WideFace.h"
#include "Tool.h"

using testing::HasSubstr;

namespace {

/// Checks one line of a transcript in tests/data/tool. There, a shell command is followed by its
/// expected results:
///
///     $ quorix mint --score high
///     fails 2 --score wants a number   the exit status and a part of the only error line
///     prints "score": 1                succeeds without an error; a part of the output
///     lacks Saans                      succeeds without an error; not in the output
///     warns never used:                succeeds with one line on standard error
void expectOutcome(const Tool::Run& run, const std::string& kind, const std::string& text) {
  const bool fails = kind == "fails";
  EXPECT_EQ(run.status, fails ? std::stoi(text) : 0);
  if (fails || kind == "warns") {
    EXPECT_EQ(run.out.empty(), fails) << run.out;
    EXPECT_THAT(run.err, testing::MatchesRegex("quorix: [^\n]*\n"));
    EXPECT_THAT(run.err, HasSubstr(fails ? text.substr(2) : text));
    EXPECT_EQ(run.err.find("--help\"") != std::string::npos, run.status == 2) << run.err;
  } else {
    EXPECT_EQ(run.err, "");
    if (kind == "prints")
      EXPECT_THAT(run.out, HasSubstr(text));
    else if (kind == "lacks")
      EXPECT_THAT(run.out, testing::Not(HasSubstr(text)));
    else
      ADD_FAILURE() << "no outcome is called " << kind;
  }
}

class ToolTranscript : public testing::TestWithParam<const char*> {};

TEST_P(ToolTranscript, HoldsLineByLine) {
  const Tool tool;
  Tool::Run run;
  std::ifstream transcript(TEST_DATA "/tool/" + std::string(GetParam()) + ".txt");
  int outcomes = 0;
  std::string command;
  for (std::string line; std::getline(transcript, line);) {
    if (line.empty() || line.starts_with('#')) continue;
    const std::size_t space = line.find(' ');
    const std::string text = line.substr(space + 1);
    if (line.starts_with('$')) {
      command = text;
      run = tool.shell(command);
      continue;
    }
    SCOPED_TRACE(command);
    expectOutcome(run, line.substr(0, space), text);
    ++outcomes;
  }
  EXPECT_GT(outcomes, 0);
}

INSTANTIATE_TEST_SUITE_P(Transcripts, ToolTranscript,
                         testing::Values("command_line", "help", "tokens", "score", "info",
                                         "translations", "overlay_url", "pictures", "gallery",
                                         "json", "preview", "strings_check"),
                         [](const auto& file) { return std::string(file.param); });

/// A name in the encoding of font files: two bytes for each letter, the higher one first.
QByteArray utf16(const char* name) {
  QByteArray bytes;
  for (; *name != '\0'; ++name) bytes.append('\0').append(*name);
  return bytes;
}

// Faces of another foundry with our names, in the user's font folder.
TEST(ToolOutput, IsInTheLibrarysFacesWhateverIsInstalled) {
  const std::string command = "quorix score $(quorix mint) --frames";
  const auto without = Tool().shell(command);
  ASSERT_EQ(without.status, 0) << without.err;
  const std::pair<const char*, bool> rows[] = {
      {"NONE", false}, {"ABCD", false}, {"ABCD", true}};  // the first is our own
  for (const auto& [foundry, inCapitals] : rows) {
    const Tool tool;
    ASSERT_TRUE(QDir().mkpath(tool.path("data/fonts")));
    for (const QString name : {"Saans-Regular", "Saans-Medium"}) {
      QFile installed(tool.path("data/fonts/" + name + ".otf"));
      ASSERT_TRUE(installed.open(QIODevice::WriteOnly));
      QByteArray face = quorix::testing::wideFace(name, foundry);
      if (inCapitals) face.replace(utf16("Saans"), utf16("SAANS"));
      installed.write(face);
    }
    const auto with =
        tool.shell("export HOME=$PWD XDG_DATA_HOME=$PWD/data XDG_CACHE_HOME=$PWD; " + command);
    EXPECT_EQ(with.status, 0) << with.err;
    EXPECT_EQ(with.out, without.out) << foundry << inCapitals;
  }
}

}  // namespace
