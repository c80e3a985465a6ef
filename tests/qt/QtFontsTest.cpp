#include "qt/text/QtFonts.h"

#include <gtest/gtest.h>

#include <QFontDatabase>
#include <QFontInfo>
#include <QFontMetricsF>
#include <QGuiApplication>
#include <QRawFont>
#include <thread>

#include "QuorixWidgets/localization/QuorixFont.h"
#include "QuorixWidgets/localization/TovaFont.h"
#include "qt/text/QtTextEngine.h"
#include "tests/qt/WideFace.h"

namespace quorix::qt {
namespace {

QRawFont face(const std::string& name) {
  QtFonts fonts;
  return QRawFont::fromFont(fonts.find(text::ResolvedFont{name, 14}).font);
}

TEST(QtFonts, AWeightPicksTheNearestFaceOfTheFamilyThatIsNoLighter) {
  using graphics::FontWeight;
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

// The host's own texts find the faces. Each case has its own process, because constants are made
// once.

#define EXPECT_IN_FRESH_PROCESS(condition)        \
  GTEST_FLAG_SET(death_test_style, "threadsafe"); \
  EXPECT_EXIT(std::_Exit((condition) ? 0 : 1), ::testing::ExitedWithCode(0), "")

bool hostFinds(const char* name, const char* style = "Regular") {
  const QFontInfo found{QFont(QString::fromLatin1(name))};
  return found.family() == QLatin1String("Saans") && found.styleName() == QLatin1String(style);
}

TEST(HostFontsDeathTest, FindAFaceFromTheMomentItsConstantIsRead) {
  EXPECT_IN_FRESH_PROCESS(!hostFinds("Saans") && !hostFinds("Saans-Regular") &&
                          (QuorixFont::regular(), hostFinds("Saans")) &&
                          hostFinds("Saans-Regular"));
  EXPECT_IN_FRESH_PROCESS((QuorixFont::medium(), hostFinds("Saans", "Medium")));
  EXPECT_IN_FRESH_PROCESS(([] {
    delete QCoreApplication::instance();
    QuorixFont::regular();  // before the application object exists
    int argc = 0;
    for (int application = 0; application < 2; ++application) {
      QGuiApplication next(argc, nullptr);
      if (!hostFinds("Saans")) return false;
    }
    return true;
  }()));
  EXPECT_IN_FRESH_PROCESS(([] {
    std::thread([] { QuorixFont::regular(); }).join();
    QCoreApplication::processEvents();
    return hostFinds("Saans");
  }()));
}

TEST(HostFontsDeathTest, AreToldOfAFaceOnceItsConstantIsThere) {
  EXPECT_IN_FRESH_PROCESS(([] {
    int told = 0;
    QObject::connect(qGuiApp, &QGuiApplication::fontDatabaseChanged,
                     [&] { told += hostFinds(QuorixFont::regular().name().c_str()) ? 1 : 0; });
    QuorixFont::regular();
    const bool during = told > 0;
    QCoreApplication::processEvents();
    return !during && told == 1;
  }()));
}

TEST(HostFontsDeathTest, AreShapedAnewOnceTheirFaceIsThere) {
  EXPECT_IN_FRESH_PROCESS(([] {
    QtTextEngine engine;
    const text::AttributedText text{{text::Run{"iiii", {"Saans-Medium", 14}, {}}}};
    const auto before = engine.measure(text, layout::infinity);
    QuorixFont::medium();
    return engine.measure(text, layout::infinity) != before;
  }()));
}

// If a host ships the family itself, maybe in full, the host's texts and the widgets both use the
// host's faces.
TEST(HostFontsDeathTest, StayTheHostsOwn) {
  EXPECT_IN_FRESH_PROCESS(([] {
    const QByteArray own = testing::wideFace("Saans-Regular", "HOST");
    if (QFontDatabase::addApplicationFontFromData(own) < 0) return false;
    const double wide = QFontMetricsF(QFont("Saans", 100)).horizontalAdvance("iiii");
    const std::string name = QuorixFont::regular().name();
    QuorixFont::medium();
    const auto isOwn = [&](const QFont& font) {
      return QRawFont::fromFont(font).fontTable("hmtx") == QRawFont(own, 12).fontTable("hmtx");
    };
    return wide == QFontMetricsF(QFont("Saans", 100)).horizontalAdvance("iiii") &&
           isOwn(QFont("Saans")) && isOwn(QtFonts().find({name, 14}).font) &&
           !isOwn(QtFonts().find({"Saans-Medium", 14}).font);
  }()));
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
