#include "qt/QtFonts.h"

#include <gtest/gtest.h>

#include <QFontDatabase>
#include <QRawFont>

#include "QuorixWidgets/localization/QuorixFont.h"
#include "QuorixWidgets/localization/TovaFont.h"
#include "platform/graphics/FontManager.h"

namespace quorix::qt {
namespace {

/// The PostScript name that the font's file carries: record 6 of its "name" table.
std::string postScriptName(const QFont& font) {
  const QByteArray table = QRawFont::fromFont(font).fontTable("name");
  const auto word = [&](qsizetype at) {
    return static_cast<quint8>(table[at]) * 256 + static_cast<quint8>(table[at + 1]);
  };
  for (int record = 0; record < word(2); ++record) {
    const qsizetype at = 6 + 12 * record;
    if (word(at + 6) != 6) continue;
    return table.mid(word(4) + word(at + 10), word(at + 8)).replace('\0', "").toStdString();
  }
  return {};
}

text::ResolvedFont named(const std::string& name) { return {name, 14}; }

/// A family of the machine's own with a face that is not its plain one.
struct InstalledFace {
  QString family;
  QString style;
};

InstalledFace installedFace() {
  for (const QString& family : QFontDatabase::families()) {
    for (const QString& style : QFontDatabase::styles(family)) {
      const bool usual = family.contains(' ') && !family.contains('-') && !style.contains('-');
      if (usual && style == "Bold" && QFontDatabase::isSmoothlyScalable(family, style)) {
        return {family, style};
      }
    }
  }
  return {};
}

TEST(QtFonts, DrawsRegisteredFacesInTheirOwnShapes) {
  QtFonts fonts;
  const std::vector<std::string> names = {QuorixFont::regular().name(), QuorixFont::medium().name(),
                                          TovaFont::regular().name(), "TovaSansLatin-SemiBold"};
  for (const std::string& name : names) {
    EXPECT_EQ(postScriptName(fonts.find(named(name)).font), name);
  }
}

TEST(QtFonts, FindsInstalledFacesByFamilyAndPostScriptName) {
  const InstalledFace face = installedFace();
  if (face.family.isEmpty()) GTEST_SKIP() << "no bold family on this machine";
  QtFonts fonts;
  const QString compact = QString(face.family).remove(' ') + '-' + face.style;
  EXPECT_EQ(fonts.find(named(face.family.toStdString())).font.family(), face.family);
  const QFont bold = fonts.find(named(compact.toStdString())).font;
  EXPECT_EQ(bold.family(), face.family);
  EXPECT_EQ(QRawFont::fromFont(bold).weight(), QFont::Bold);
  EXPECT_TRUE(QtFonts::systemKnows(compact.toStdString()));
  EXPECT_FALSE(QtFonts::systemKnows((QString(face.family).remove(' ') + "-Nope").toStdString()));
}

TEST(QtFonts, UnknownNamesDrawInTheSystemsFont) {
  QtFonts fonts;
  const QFont system = QFontDatabase::systemFont(QFontDatabase::GeneralFont);
  for (const char* name : {"", "NoSuch-Face", "NoSuchFamily", "-", "-Bold"}) {
    EXPECT_EQ(fonts.find(named(name)).font.family(), system.family()) << name;
    EXPECT_FALSE(QtFonts::systemKnows(name)) << name;
  }
}

TEST(QtFonts, TellsTheFontManagerWhatTheSystemHas) {
  const InstalledFace face = installedFace();
  if (face.family.isEmpty()) GTEST_SKIP() << "no bold family on this machine";
  const QtFonts fonts;
  EXPECT_TRUE(graphics::FontManager::shared().knows(face.family.toStdString()));
  EXPECT_FALSE(graphics::FontManager::shared().knows("NoSuch-Face"));
}

TEST(QtFonts, AWeightPicksTheFamilysHeavierFace) {
  const InstalledFace face = installedFace();
  if (face.family.isEmpty()) GTEST_SKIP() << "no bold family on this machine";
  QtFonts fonts;
  text::ResolvedFont font = named(face.family.toStdString());
  font.weight = swiftui::FontWeight::bold;
  EXPECT_EQ(QRawFont::fromFont(fonts.find(font).font).weight(), QFont::Bold);
}

}  // namespace
}  // namespace quorix::qt
