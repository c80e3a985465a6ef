#include <gmock/gmock.h>
#include <unistd.h>

#include <QCoreApplication>
#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>

namespace quorix::testing {
namespace {

using ::testing::HasSubstr;

struct ChildResult {
  int status = -1;  ///< -1 if it did not end by itself
  QByteArray output;
};

/// Runs a shell's line in `folder`, or in the current folder. $SELF is this program, which runs a
/// task of main.cpp by name.
ChildResult runChild(const QString& line, const QString& folder = {}) {
  auto variables = QProcessEnvironment::systemEnvironment();
  variables.remove(QStringLiteral("QTWEBENGINE_CHROMIUM_FLAGS"));  // names this process's server
  variables.insert(QStringLiteral("SELF"), QCoreApplication::applicationFilePath());
  QProcess child;
  child.setProcessEnvironment(variables);
  child.setProcessChannelMode(QProcess::ForwardedErrorChannel);
  child.setWorkingDirectory(folder);
  child.start(QStringLiteral("/bin/bash"), {QStringLiteral("-c"), line});
  if (!child.waitForFinished(60000)) {
    child.kill();
    child.waitForFinished();
  }
  const bool ended = child.exitStatus() == QProcess::NormalExit;
  return {ended ? child.exitCode() : -1, child.readAllStandardOutput()};
}

const std::pair<QString, const char*> kToolkits[] = {
    {"maps-quick", "after: engine 1 quick 1 widgets 0"},
    {"maps-widgets", "after: engine 1 quick 0 widgets 1"},
};

TEST(EngineLoading, WaitsForTheFirstPageToShow) {
  for (const auto& [task, after] : kToolkits) {
    // With shared contexts, as hosts are told to set, and without.
    for (const QString late : {"unset WEB_TESTS_LATE", "export WEB_TESTS_LATE=1"}) {
      const ChildResult child = runChild(late + "; exec $SELF " + task);
      EXPECT_EQ(child.status, 0) << qPrintable(task);
      EXPECT_THAT(child.output.toStdString(), HasSubstr("before: engine 0 quick 0 widgets 0\n"));
      EXPECT_THAT(child.output.toStdString(), HasSubstr(after));
      EXPECT_THAT(child.output.toStdString(), HasSubstr("sheet: 1\n"));
    }
  }
}

TEST(EngineLoading, OpensTheAddressOutsideWhereTheEngineWouldEndTheProcess) {
  if (geteuid() != 0) GTEST_SKIP() << "the engine refuses nobody but root";
  for (const auto& [task, after] : kToolkits) {
    const ChildResult child = runChild(
        "unset QTWEBENGINE_DISABLE_SANDBOX; export WEB_TESTS_KEEP_SANDBOX=1; exec $SELF " + task);
    EXPECT_EQ(child.status, 0);
    EXPECT_THAT(child.output.toStdString(),
                HasSubstr("outside: https://modules.quorix.example/page\nsheet: 0\n"));
  }
}

TEST(EngineLoading, RunsNoCodeFromTheCurrentFolderAndOpensTheBrowserOnce) {
  const QTemporaryDir elsewhere, current;
  const QString program = QCoreApplication::applicationFilePath();
  ASSERT_TRUE(QFile::copy(program, elsewhere.filePath("shop")));
  QDir(current.path()).mkdir("quorix");
  const QDir real(QFileInfo(program).absolutePath() + "/quorix");
  for (const QString& library : real.entryList({"*.so"})) {
    for (const char* folder : {"/", "/quorix/"}) {
      ASSERT_TRUE(QFile::copy(real.filePath(library), current.path() + folder + library));
    }
  }
  for (const auto& [task, after] : kToolkits) {
    // Started like a shell does: by its bare name, and by a path.
    for (const QString& name : {QStringLiteral("shop"), current.filePath("shop")}) {
      const QString line = "export LD_LIBRARY_PATH=. QT_PLUGIN_PATH=. PATH=" + elsewhere.path() +
                           "; exec -a " + name + " shop " + task;
      const ChildResult child = runChild(line, current.path());
      EXPECT_EQ(child.output.toStdString(),
                "before: engine 0 quick 0 widgets 0\nafter: engine 0 quick 0 widgets 0\n"
                "outside: https://modules.quorix.example/page\nsheet: 0\n")
          << qPrintable(name);
    }
  }
}

TEST(EngineLoading, NothingIsKeptForTheNextProcess) {
  const QTemporaryDir home;
  const QString at = home.path();
  const QString run = "export HOME=" + at + " XDG_CACHE_HOME=" + at + "/cache XDG_DATA_HOME=" + at +
                      "/data XDG_CONFIG_HOME=" + at + "/config; exec $SELF kept";
  EXPECT_EQ(runChild(run).output, "kept \n");
  EXPECT_EQ(runChild(run).output, "kept \n");
  QStringList files;
  for (QDirIterator it(at, QDir::Files, QDirIterator::Subdirectories); it.hasNext();) {
    files.append(it.next());
  }
  EXPECT_THAT(files.join('\n').toStdString(), ::testing::Not(HasSubstr("Cookies")));
  EXPECT_THAT(files.join('\n').toStdString(), ::testing::Not(HasSubstr("QtWebEngine/")));
}

}  // namespace
}  // namespace quorix::testing
