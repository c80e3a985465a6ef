#include <gtest/gtest.h>

#include <QDir>

#include "../qt/WideFace.h"
#include "Tool.h"

namespace {

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
