#include <gmock/gmock.h>
#include <unistd.h>

#include <QCoreApplication>
#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QTemporaryDir>

#include "qt/WebComponent.h"
#include "tests/web/ChildProcess.h"

namespace quorix::testing {
namespace {

using ::testing::HasSubstr;
using ::testing::Not;

struct Toolkit {
  const char* task;
  const char* after;
};
constexpr Toolkit kToolkits[] = {
    {"maps-quick", "after: engine 1 quick 1 widgets 0"},
    {"maps-widgets", "after: engine 1 quick 0 widgets 1"},
};

TEST(EngineLoading, WaitsForTheFirstPageToShow) {
  for (const Toolkit& toolkit : kToolkits) {
    // With contexts to share, as hosts are asked to, and without.
    for (const char* late : {"WEB_TESTS_LATE", "WEB_TESTS_LATE=1"}) {
      const ChildResult child = runChild(toolkit.task, {late});
      EXPECT_EQ(child.status, 0) << toolkit.task;
      EXPECT_THAT(child.output.toStdString(), HasSubstr("before: engine 0 quick 0 widgets 0\n"));
      EXPECT_THAT(child.output.toStdString(), HasSubstr(toolkit.after));
      EXPECT_THAT(child.output.toStdString(), HasSubstr("sheet: 1\n"));
    }
  }
}

TEST(EngineLoading, OpensTheAddressOutsideWhereTheEngineWouldEndTheProcess) {
  if (geteuid() != 0) GTEST_SKIP() << "the engine refuses nobody but root";
  for (const Toolkit& toolkit : kToolkits) {
    const ChildResult child =
        runChild(toolkit.task, {"WEB_TESTS_KEEP_SANDBOX=1", "QTWEBENGINE_DISABLE_SANDBOX"});
    EXPECT_EQ(child.status, 0);
    EXPECT_THAT(child.output.toStdString(),
                HasSubstr("outside: https://modules.quorix.example/page\nsheet: 0\n"));
  }
}

TEST(EngineLoading, RunsNoCodeFromTheCurrentFolderAndOpensTheBrowserOnce) {
  const QTemporaryDir elsewhere, current;
  const Place byName{elsewhere.path(), "shop", current.path()};
  const Place byPath{elsewhere.path(), "shop", current.path(), current.filePath("shop")};
  const QString program = QCoreApplication::applicationFilePath();
  ASSERT_TRUE(QFile::copy(program, elsewhere.filePath("shop")));
  QDir(current.path()).mkdir("quorix");
  const QDir real(QFileInfo(program).absolutePath() + "/quorix");
  for (const QString& library : real.entryList({"*.so"})) {
    for (const char* folder : {"/", "/quorix/"}) {
      ASSERT_TRUE(QFile::copy(real.filePath(library), current.path() + folder + library));
    }
  }
  for (const Toolkit& toolkit : kToolkits) {
    for (const Place& place : {byName, byPath}) {
      const ChildResult child =
          runChild(toolkit.task, {"LD_LIBRARY_PATH=.", "QT_PLUGIN_PATH=."}, place);
      EXPECT_EQ(child.output.toStdString(),
                "before: engine 0 quick 0 widgets 0\nafter: engine 0 quick 0 widgets 0\n"
                "outside: https://modules.quorix.example/page\nsheet: 0\n")
          << qPrintable(place.calledAs);
    }
  }
}

TEST(EngineLoading, FindsAComponentOnlyWhereItIsInstalled) {
  EXPECT_FALSE(qt::WebComponentLoader::isThere(QStringLiteral("QuorixWebElsewhere")));
  EXPECT_FALSE(qt::WebComponentLoader::load(QStringLiteral("QuorixWebElsewhere")));
}

TEST(EngineLoading, NothingIsKeptForTheNextProcess) {
  const QTemporaryDir home;
  const QString at = home.path();
  const QStringList own = {"HOME=" + at, "XDG_CACHE_HOME=" + at + "/cache",
                           "XDG_DATA_HOME=" + at + "/data", "XDG_CONFIG_HOME=" + at + "/config",
                           "QTWEBENGINE_CHROMIUM_FLAGS"};
  EXPECT_EQ(runChild("kept", own).output, "kept \n");
  EXPECT_EQ(runChild("kept", own).output, "kept \n");
  QStringList files;
  for (QDirIterator it(at, QDir::Files, QDirIterator::Subdirectories); it.hasNext();) {
    files.append(it.next());
  }
  for (const QString& file : files) {
    EXPECT_THAT(file.toStdString(), Not(HasSubstr("Cookies"))) << qPrintable(files.join('\n'));
    EXPECT_THAT(file.toStdString(), Not(HasSubstr("QtWebEngine/"))) << qPrintable(files.join('\n'));
  }
}

}  // namespace
}  // namespace quorix::testing
