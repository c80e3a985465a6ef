#include "qt/QtFonts.h"

#include <gtest/gtest.h>

#include <QFontDatabase>

namespace quorix::qt {
namespace {

TEST(QtFonts, UnknownNamesDrawInTheSystemsFont) {
  QtFonts fonts;
  const QFont system = QFontDatabase::systemFont(QFontDatabase::GeneralFont);
  for (const char* name : {"", "NoSuch-Face", "NoSuchFamily", "-", "-Bold"}) {
    EXPECT_EQ(fonts.find(text::ResolvedFont{name, 14}).font.family(), system.family()) << name;
    EXPECT_FALSE(QtFonts::systemKnows(name)) << name;
  }
}

}  // namespace
}  // namespace quorix::qt
