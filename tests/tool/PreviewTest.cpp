#include <gtest/gtest.h>

#include <QDeadlineTimer>
#include <QImage>
#include <QProcess>
#include <algorithm>

#include "Tool.h"

namespace {

/// A preview that writes its pictures into a file, without a display.
struct Preview {
  Tool tool;
  QProcess process;
  QImage shown;

  explicit Preview(QStringList arguments) {
    arguments << "--out" << tool.path("shown.png");
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert("QT_QPA_PLATFORM", "offscreen");
    process.setProcessEnvironment(environment);
    process.setWorkingDirectory(tool.path("."));
    process.start(QUORIX_TOOL, QStringList("preview") + arguments);
  }
  ~Preview() {
    process.kill();
    process.waitForFinished();
  }

  /// Waits for another picture and stores it in `shown`. False if there is none.
  bool showsAnother() {
    const QDeadlineTimer deadline(20'000);
    while (!deadline.hasExpired() && !process.waitForFinished(20)) {
      const QImage now(tool.path("shown.png"));
      if (now.isNull() || now == shown) continue;
      shown = now;
      return true;
    }
    return false;
  }
};

/// The right end of the row's title, in pixels of a screen 375 wide.
int reachOfTitle(const QImage& screen) {
  int reach = 0;
  for (int y = 0; y < 60; ++y) {
    for (int x = 0; x < 250; ++x) {
      if (qGray(screen.pixel(x, y)) < 128) reach = std::max(reach, x);
    }
  }
  return reach;
}

}  // namespace

TEST(PreviewTool, FollowsTextsAndAssetsAndSaysInWhichLanguageATableIsWrong) {
  const Tool folder;
  const auto made = folder.shell(
      "cp -r $STRINGS/en.lproj $STRINGS/de.lproj . && "
      "sed -i 's/%\\.0f/%d/' de.lproj/Localizable.strings && mkdir Assets.xcassets && "
      "cp -r $STRINGS/Assets.xcassets/Background.colorset Assets.xcassets");
  ASSERT_EQ(made.status, 0) << made.err;
  Preview preview({"--widget", "info", "--resources", folder.path(".")});
  ASSERT_TRUE(preview.showsAnother());
  EXPECT_TRUE(preview.process.readAllStandardError().startsWith(
      "quorix: preview: note: de.lproj/Localizable.strings: \""));
  const char* rows[] = {
      "sed -i 's/\"widget-read-more\".*/\"widget-read-more\" = \"Onwards\";/' "
      "en.lproj/Localizable.strings",
      // With a table saved half-way, the preview shows no widget and continues.
      "cp en.lproj/Localizable.strings whole && "
      "sed -i 's/\"info-widget-title\".*/\"info-widget-title\" = \"\";/' "
      "en.lproj/Localizable.strings",
      "cp whole en.lproj/Localizable.strings",
      "sed -i 's/\"red\".*:.*/\"red\" : \"0.300\",/' Assets.xcassets/Background.colorset/*.json",
  };
  for (const char* edit : rows) {
    ASSERT_EQ(folder.shell(edit).status, 0) << edit;
    EXPECT_TRUE(preview.showsAnother()) << edit;
  }
}

TEST(PreviewTool, FollowsTranslationsThatAreReplaced) {
  const Tool folder;
  ASSERT_EQ(folder.shell(R"(echo '{"returns": {"title": "i"}}' > texts.json)").status, 0);
  Preview preview({"--translations", folder.path("texts.json")});
  while (preview.showsAnother() && reachOfTitle(preview.shown) > 30) {
  }
  ASSERT_LT(reachOfTitle(preview.shown), 30);
  // Replaces the file like an editor: a new file with the old name.
  const auto replaced =
      folder.shell(R"(echo '{"returns": {"title": "a title that is far longer"}}' > new.json)"
                   "&& mv new.json texts.json");
  ASSERT_EQ(replaced.status, 0) << replaced.err;
  // On a busy machine, a picture with the built-in texts comes first.
  while (preview.showsAnother() && reachOfTitle(preview.shown) <= 180) {
  }
  EXPECT_GT(reachOfTitle(preview.shown), 180);
}
