#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <algorithm>

#include "Tool.h"

using testing::EndsWith;
using testing::HasSubstr;

namespace {

class ToolStringsCheck : public testing::Test {
 protected:
  /// The English table that the library has.
  static QByteArray english() {
    QFile file(QStringLiteral(STRINGS "/en.lproj/Localizable.strings"));
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
  }
  void write(const QString& language, const QByteArray& table) const {
    ASSERT_TRUE(QDir().mkpath(tool_.path(language + ".lproj")));
    ASSERT_NE(tool_.write(language + ".lproj/Localizable.strings", table), QString());
  }

  Tool tool_;
};

TEST_F(ToolStringsCheck, TheLibrarysOwnTablesAreInOrder) {
  for (const QStringList& words :
       {QStringList{"strings", "check"}, {"strings", "check", QStringLiteral(STRINGS)}}) {
    const auto run = tool_.run(words);
    EXPECT_EQ(run.status, 0);
    EXPECT_THAT(run.out, EndsWith(" tables checked, nothing found\n"));
    EXPECT_EQ(run.err, "");
  }
}

TEST_F(ToolStringsCheck, EveryMistakeIsALine) {
  write("en", english());
  write("de", english().replace("%.0f", "%d").replace("\"widget-read-more\"", "\"a\\n\\033b\""));
  write("es", "// ok\n\"info-widget-title\" = \"x\"\n");
  write("pt-BR", english().replace("%@", ""));
  QDir().mkpath(tool_.path("fr.lproj"));
  const auto run = tool_.run({"strings", "check", tool_.path("")});
  EXPECT_EQ(run.status, 1);
  EXPECT_EQ(run.err, "quorix: strings check: 8 findings in 5 tables\n");
  EXPECT_THAT(run.out,
              HasSubstr("de.lproj/Localizable.strings: \"widget-read-more\" is missing\n"));
  EXPECT_THAT(run.out, HasSubstr("de.lproj/Localizable.strings: \"a  b\" is never used\n"));
  EXPECT_THAT(run.out, HasSubstr("return-rate-low\" has \"%d\", which does not match"));
  EXPECT_THAT(run.out, HasSubstr("es.lproj/Localizable.strings: line 3: ';' is expected"));
  EXPECT_THAT(run.out, HasSubstr("fr.lproj/Localizable.strings: is missing\n"));
  EXPECT_THAT(run.out,
              HasSubstr("pt-BR.lproj/Localizable.strings: \"webview-overlay-title\" does"));
  EXPECT_EQ(std::count(run.out.begin(), run.out.end(), '\n'), 8);
}

TEST_F(ToolStringsCheck, EnglishMustBeThere) {
  write("de", english());
  const auto run = tool_.run({"strings", "check", tool_.path("")});
  EXPECT_EQ(run.status, 1);
  EXPECT_EQ(run.out, "en.lproj/Localizable.strings: is missing\n");
  EXPECT_EQ(run.err, "quorix: strings check: 1 finding in 2 tables\n");
}

TEST_F(ToolStringsCheck, AFolderWithoutTablesIsRefused) {
  for (const QString& folder : {QString("/nowhere"), tool_.path("")}) {
    const auto run = tool_.run({"strings", "check", folder});
    EXPECT_EQ(run.status, 1);
    EXPECT_EQ(run.out, "");
    EXPECT_TRUE(isOneErrorLine(run.err)) << run.err;
  }
}

}  // namespace
