#include "qt/QtFonts.h"

#include <gtest/gtest.h>

#include <QFontDatabase>
#include <QRawFont>

#include "QuorixWidgets/localization/QuorixFont.h"
#include "QuorixWidgets/localization/TovaFont.h"

namespace quorix::qt {
namespace {

QRawFont face(const std::string& name) {
  QtFonts fonts;
  return QRawFont::fromFont(fonts.find(text::ResolvedFont{name, 14}).font);
}

TEST(QtFonts, AWeightPicksTheNearestFaceOfTheFamilyThatIsNoLighter) {
  using swiftui::FontWeight;
  const std::string regular = QuorixFont::regular().name(), medium = QuorixFont::medium().name();
  const std::string tova = TovaFont::regular().name(), semiBold = "TovaSansLatin-SemiBold";
  const struct {
    std::string named;
    FontWeight weight;
    std::string drawn;
  } rows[] = {
      {regular, FontWeight::regular, regular}, {regular, FontWeight::medium, medium},
      {regular, FontWeight::bold, medium},     {medium, FontWeight::semibold, medium},
      {medium, FontWeight::regular, medium},   {tova, FontWeight::medium, tova},
      {tova, FontWeight::semibold, semiBold},  {semiBold, FontWeight::semibold, semiBold},
  };
  QtFonts fonts;
  for (const auto& row : rows) {
    const QFont found = fonts.find({row.named, 14, row.weight}).font;
    EXPECT_EQ(QRawFont::fromFont(found).fontTable("head"), face(row.drawn).fontTable("head"))
        << row.named << " in weight " << static_cast<int>(row.weight);
  }
}

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
