#include "qt/QtFonts.h"

#include <gtest/gtest.h>

#include <QFontDatabase>
#include <QPainterPath>
#include <QRawFont>

#include "QuorixWidgets/localization/QuorixFont.h"
#include "QuorixWidgets/localization/TovaFont.h"

namespace quorix::qt {
namespace {

QRawFont face(const std::string& name) {
  QtFonts fonts;
  return QRawFont::fromFont(fonts.find(text::ResolvedFont{name, 14}).font);
}

TEST(QtFonts, DrawsEachRegisteredFaceInItsOwnShapes) {
  const QRawFont regular = face(QuorixFont::regular().name());
  const QRawFont medium = face(QuorixFont::medium().name());
  const QRawFont tova = face(TovaFont::regular().name());
  const QRawFont semiBold = face("TovaSansLatin-SemiBold");
  // The glyphs' outlines are what a wrong face of the right family gives away.
  const auto shape = [](const QRawFont& font) {
    return font.pathForGlyph(font.glyphIndexesForString("R").at(0));
  };
  EXPECT_NE(shape(regular), shape(medium));
  EXPECT_NE(shape(tova), shape(semiBold));
  EXPECT_NE(shape(regular), shape(tova));
  EXPECT_LT(regular.weight(), medium.weight());
  EXPECT_LT(tova.weight(), semiBold.weight());
}

/// A weight is met by the nearest face of the family; strokes are thickened only where that falls
/// far short, and a face that its designer made heavy enough stays as it is.
TEST(QtFonts, AWeightPicksAFaceOfTheFamily) {
  using swiftui::FontWeight;
  TovaFont::regular();
  const std::string regular = QuorixFont::regular().name(), medium = QuorixFont::medium().name();
  const struct {
    std::string named;
    FontWeight weight;
    std::string drawn;
    bool thickened;
  } rows[] = {
      {regular, FontWeight::medium, medium, false},
      {regular, FontWeight::semibold, medium, false},
      {medium, FontWeight::semibold, medium, false},
      {medium, FontWeight::medium, medium, false},
      {medium, FontWeight::regular, medium, false},
      {medium, FontWeight::bold, medium, true},
      {"TovaSansLatin-Regular", FontWeight::bold, "TovaSansLatin-SemiBold", false},
      {"TovaSansLatin-SemiBold", FontWeight::semibold, "TovaSansLatin-SemiBold", false},
  };
  QtFonts fonts;
  for (const auto& row : rows) {
    const QRawFont drawn = QRawFont::fromFont(fonts.find({row.named, 14, row.weight}).font);
    const QRawFont plain = face(row.drawn);
    const auto ink = [](const QRawFont& font) {
      return font.boundingRect(font.glyphIndexesForString("R").at(0)).width();
    };
    EXPECT_EQ(drawn.fontTable("glyf") + drawn.fontTable("CFF "),
              plain.fontTable("glyf") + plain.fontTable("CFF "))
        << row.named;
    EXPECT_EQ(ink(drawn) > ink(plain), row.thickened) << row.named;
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
