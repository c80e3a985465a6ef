#include <gtest/gtest.h>

#include <QDir>
#include <QFile>

#include "../qt/WideFace.h"
#include "Tool.h"

namespace {

/// A name as font files hold it: two bytes for a letter, the higher first.
QByteArray utf16(const char* name) {
  QByteArray bytes;
  for (; *name != '\0'; ++name) bytes.append('\0').append(*name);
  return bytes;
}

// Another foundry's faces under our names, installed where a user installs fonts.
TEST(ToolOutput, IsInTheLibrarysFacesWhateverIsInstalled) {
  const std::string command = "quorix score $(quorix mint) --frames";
  const auto without = Tool().shell(command);
  ASSERT_EQ(without.status, 0) << without.err;
  const std::pair<const char*, bool> rows[] = {
      {"NONE", false}, {"ABCD", false}, {"ABCD", true}};  // the first is that of our own
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
