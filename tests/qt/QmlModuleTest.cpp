#include <QLocale>

#include "QuorixWidgets/info/InfoWidgetBuilder.h"
#include "QuorixWidgets/score/ScoreWidgetBuilder.h"
#include "examples/common/TokenMint.h"
#include "platform/foundation/Runtime.h"
#include "platform/swiftui/TreePrinter.h"
#include "qml/Types.h"
#include "tests/core/Widgets.h"
#include "tests/qt/Screens.h"

namespace quorix::testing {
namespace {

/// A type of the module that counts the widgets that it makes.
template <class Type>
struct Open : Type {
  static inline int made = 0;
  swiftui::View widget() const override { return ++made, Type::widget(); }
};
using Score = Open<qml::ScoreWidget>;
using Info = Open<qml::InfoWidget>;

QString tokenOf(std::int64_t fee) {
  return QString::fromStdString(examples::mintToken({0.82, "EUR", 900, fee}));
}

struct QmlModule : ::testing::Test {
  QmlModule() {
    qmlRegisterType<Score>("Shop", 1, 0, "Score");
    qmlRegisterType<Info>("Shop", 1, 0, "Info");
    Score::made = 0;
  }

  QQuickItem* add(const char* source) {
    QQuickItem* item = screen.addQml(QByteArray(source).replace("TOKEN", tokenOf(300).toUtf8()));
    screen.settle();
    return item;
  }
  int made() { return std::exchange(Score::made, 0); }

  std::shared_ptr<void> requests = offline();
  QuickScreen screen;
};

TEST_F(QmlModule, MakesWhatTheBuildersMake) {
  QLocale::setDefault(QLocale("de_DE"));
  constexpr auto absent = std::nullopt;
  const auto score = [](auto client, auto locale, const ScoreWidgetStyle& style) {
    return ScoreWidgetBuilder::buildSwiftUIScoreWidgetView(client, locale,
                                                           tokenOf(300).toStdString(), style);
  };
  const auto info = &InfoWidgetBuilder::buildSwiftUIInfoWidgetView;
  const auto cream = swiftui::Color::fixed({250, 247, 240, 128});
  const std::pair<const char*, swiftui::View> cases[] = {
      {"Score { clientId: 'shop'; token: 'TOKEN'; locale: 'es'; regularFont: '' }",
       score("shop", "es", {absent, absent})},
      {"Score { clientId: 'shop'; token: 'TOKEN'; regularFont: 'A'; semiBoldFont: 'B' }",
       score("shop", "de", {"A", "B"})},
      {"Score { token: 'TOKEN' }", score("", "de", {absent, absent})},
      {"Score { clientId: 'shop'; token: undefined }", score("", "de", {absent, absent})},
      {"Info { locale: undefined; backgroundColor: undefined; semiBoldFont: 'B' }",
       info("de", {absent, "B", absent, false})},
      {"Info { locale: 'nb'; backgroundColor: '#80faf7f0'; showBorder: true }",
       info("nb", {absent, absent, cream, true})},
  };
  for (const auto& [source, expected] : cases) {
    const QQuickItem* item = add(source);
    const auto* asInfo = dynamic_cast<const Info*>(item);
    const auto view = asInfo ? asInfo->widget() : static_cast<const Score*>(item)->widget();
    EXPECT_EQ(printTree(view), printTree(expected)) << source;
    const qt::ViewItem plain(expected);
    EXPECT_EQ(item->size(), QSizeF(plain.implicitWidth(), plain.implicitHeight()));
  }
  QLocale::setDefault(QLocale::c());
}

TEST_F(QmlModule, IsMadeOnceForAllThatChangesInOneGo) {
  QQuickItem* row = add(R"(
      Score { visible: implicitHeight > 0; clientId: "shop"; token: "TOKEN"; locale: "en" })");
  EXPECT_EQ(made(), 1);
  row->setProperty("token", tokenOf(200));
  row->setProperty("locale", "es");
  EXPECT_EQ(made(), 0);
  screen.settle();
  EXPECT_EQ(made(), 1);
  row->setProperty("locale", "es");
  row->setProperty("textSize", qml::WidgetItem::Small);
  screen.settle();
  EXPECT_EQ(made(), 0);
  // An item that is hidden because it is empty appears when it has something to show.
  for (const bool shown : {false, true}) {
    row->setProperty("token", shown ? tokenOf(100) : "unreadable");
    screen.settle();
    EXPECT_EQ(row->isVisible(), shown);
    EXPECT_EQ(made(), 1);
  }
}

TEST_F(QmlModule, ANewTokenStandsWhereTheOldOneStoodAndClosesItsSheet) {
  auto* row = add("Score { y: 40; width: 300; clientId: 'shop'; token: 'TOKEN'; locale: 'en' }");
  row->setProperty("animated", false);
  screen.addFocusable();
  screen.key(Qt::Key_Tab);
  ASSERT_TRUE(row->hasActiveFocus());
  const QImage before = screen.grab();
  row->setProperty("token", tokenOf(200));
  EXPECT_NE(screen.grab(), before) << "the first frame shows it";
  row->setProperty("token", tokenOf(300));
  EXPECT_EQ(screen.grab(), before) << "the ring is where it was";
  screen.key(Qt::Key_Space);
  screen.settle();
  EXPECT_TRUE(screen.shows("Close"));
  made();
  const QString signedAnew = tokenOf(300).section('.', 0, 1) + ".b3RoZXI";
  row->setProperty("token", signedAnew);
  screen.settle();
  EXPECT_EQ(made(), 0) << "the same figures are the same widget";
  EXPECT_TRUE(screen.shows("Close"));
  EXPECT_EQ(row->property("token").toString(), signedAnew);
  row->setProperty("token", tokenOf(200));
  screen.settle();
  EXPECT_EQ(made(), 1);
  EXPECT_FALSE(screen.shows("Close"));
}

TEST_F(QmlModule, TellsWhatHappenedUntilItsEnd) {
  QQuickItem* page = add(R"(
      import QuorixWidgets
      Item {
        id: page
        property string told
        property Item row: Score {
          parent: page; y: 40; width: 300; clientId: "shop"; token: "TOKEN"; locale: "en"
          animated: false
          onActivated: page.told += "activated "
          onSheetOpened: page.told += "opened "
          onSheetClosed: (reason) => {
            page.told += ["Key", "Host"].find((name) => SheetCloseReason[name] === reason) + " "
          }
        }
        function end() { row.destroy() }
      })");
  for (const bool ends : {false, true}) {
    page->setProperty("told", "");
    page->property("row").value<QQuickItem*>()->forceActiveFocus();
    screen.key(Qt::Key_Space);
    ASSERT_TRUE(screen.shows("Close"));
    ends ? void(QMetaObject::invokeMethod(page, "end")) : screen.key(Qt::Key_Escape);
    screen.settle();
    EXPECT_EQ(page->property("told").toString(),
              ends ? "activated opened Host " : "activated opened Key ");
  }
}

TEST_F(QmlModule, FetchesTextsAheadOnceTheNetworkIsOn) {
  const foundation::Runtime::Fresh<foundation::URLSession> session;
  const auto server = HeldTransport::install();
  QQuickItem* page = add(R"(
      import QuorixWidgets
      Item {
        property bool consent: false
        TextService { prefetch: "fr"; networkEnabled: consent }
      })");
  EXPECT_EQ(server->held.size(), 0U);
  const auto url = foundation::URL::parse("https://shop.example/texts").value();
  const auto isOff = [&] { return foundation::URLSession::shared().answerInProcess(url); };
  EXPECT_TRUE(isOff());
  page->setProperty("consent", true);
  EXPECT_EQ(server->held.size(), 1U);
  EXPECT_FALSE(isOff());
  foundation::URLSession::shared().setNetworkEnabled(false);
  add("import QuorixWidgets; Item { TextService { prefetch: 'it' } }");
  EXPECT_TRUE(isOff()) << "a switch that is not named is the host's";
  add("import QuorixWidgets; Item { TextService { networkEnabled: true } }");
  EXPECT_FALSE(isOff());
}

}  // namespace
}  // namespace quorix::testing
