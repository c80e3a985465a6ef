#include "qt/Desktop.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

namespace quorix::testing {
namespace {

struct Wish {
  const char* file;
  const char* text;
  bool reduced;
};

TEST(Desktop, ReadsTheWishForLessMotionFromTheDesktopsFiles) {
  const QByteArray before = qgetenv("XDG_CONFIG_HOME");
  for (const Wish& wish :
       {Wish{"kdeglobals", "[KDE]\nAnimationDurationFactor=0\n", true},
        {"kdeglobals", "[KDE]\nAnimationDurationFactor=0.5\n", false},
        {"gtk-4.0/settings.ini", "[Settings]\ngtk-enable-animations=0\n", true},
        {"gtk-3.0/settings.ini", "[Settings]\ngtk-enable-animations=false\n", true},
        {"gtk-3.0/settings.ini", "[Settings]\ngtk-enable-animations=1\n", false},
        {"gtk-3.0/settings.ini", "[Settings]\n", false}}) {
    const QTemporaryDir folder;
    QDir(folder.path()).mkpath(QFileInfo(wish.file).path());
    QFile file(folder.filePath(wish.file));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(wish.text);
    file.close();
    qputenv("XDG_CONFIG_HOME", folder.path().toLocal8Bit());
    EXPECT_EQ(qt::Desktop::prefersReducedMotion(), wish.reduced) << wish.file << '\n' << wish.text;
  }
  before.isEmpty() ? qunsetenv("XDG_CONFIG_HOME") : qputenv("XDG_CONFIG_HOME", before);
}

}  // namespace
}  // namespace quorix::testing
