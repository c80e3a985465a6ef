#include <gtest/gtest.h>

#include <QLocale>

#include "QuorixWidgets/info/InfoWidgetBuilder.h"
#include "QuorixWidgets/score/ScoreWidgetBuilder.h"
#include "examples/common/TokenMint.h"
#include "platform/foundation/URLSession.h"
#include "platform/swiftui/TreePrinter.h"
#include "qt/qml/InfoWidget.h"
#include "qt/qml/ScoreWidget.h"
#include "tests/qt/QuickScreen.h"
#include "tests/qt/WaitUntil.h"

namespace quorix::testing {
namespace {

constexpr auto absent = std::nullopt;

/// A type of the module that counts how often it is made.
class CountedScore : public qml::ScoreWidget {
  Q_OBJECT
 public:
  static inline int made = 0;
  swiftui::View widget() const override {
    ++made;
    return ScoreWidget::widget();
  }
};

class OpenInfo : public qml::InfoWidget {
  Q_OBJECT
 public:
  using InfoWidget::widget;
};

QString tokenOf(std::int64_t fee) {
  return QString::fromStdString(examples::mintToken({0.82, "EUR", 900, fee}));
}

struct QmlModule : ::testing::Test {
  QmlModule() {
    CountedScore::made = 0;
    qmlRegisterType<CountedScore>("Shop", 1, 0, "CountedScore");
    qmlRegisterType<OpenInfo>("Shop", 1, 0, "OpenInfo");
  }

  QQuickItem* add(const QString& source) {
    const QString text = "import QuorixWidgets\n" + source;
    QQuickItem* item = screen.addQml(QString(text).replace("TOKEN", tokenOf(300)).toUtf8());
    screen.settle();
    return item;
  }

  int made() { return std::exchange(CountedScore::made, 0); }

  std::shared_ptr<void> offline =
      foundation::URLSession::shared().registerProtocol([](const auto&) {
        return foundation::URLResponse{foundation::Error{"Test", 1, "offline"}, {}, 0};
      });
  QuickScreen screen;
};

TEST_F(QmlModule, MakesWhatTheBuildersMake) {
  QLocale::setDefault(QLocale("de_DE"));
  const std::string token = tokenOf(300).toStdString();
  const auto score = [&](std::string_view locale, ScoreWidgetStyle style) {
    return ScoreWidgetBuilder::buildSwiftUIScoreWidgetView("shop", locale, token, style);
  };
  const auto info = [&](std::string_view locale, InfoWidgetStyle style) {
    return InfoWidgetBuilder::buildSwiftUIInfoWidgetView(locale, style);
  };
  const auto cream = swiftui::Color::fixed({250, 247, 240, 128});
  const struct {
    const char* source;
    swiftui::View expected;
  } cases[] = {
      {"CountedScore { clientId: 'shop'; token: 'TOKEN'; locale: 'es' }",
       score("es", {absent, absent})},
      {"CountedScore { clientId: 'shop'; token: 'TOKEN'; regularFont: 'A'; semiBoldFont: 'B' }",
       score("de", {"A", "B"})},
      {"CountedScore { clientId: 'shop'; token: 'TOKEN'; locale: 'en'; regularFont: '' }",
       score("en", {absent, absent})},
      {"OpenInfo {}", info("de", {absent, absent, absent, false})},
      {"OpenInfo { locale: undefined; backgroundColor: undefined; semiBoldFont: 'B' }",
       info("de", {absent, "B", absent, false})},
      {"OpenInfo { locale: 'nb'; backgroundColor: '#80faf7f0'; showBorder: true }",
       info("nb", {absent, absent, cream, true})},
  };
  for (const auto& tested : cases) {
    const QQuickItem* item = add(tested.source);
    const auto* asInfo = qobject_cast<const OpenInfo*>(item);
    const swiftui::View view =
        asInfo ? asInfo->widget() : static_cast<const CountedScore*>(item)->widget();
    EXPECT_EQ(printTree(view), printTree(tested.expected)) << tested.source;
  }
  QLocale::setDefault(QLocale::c());
}

TEST_F(QmlModule, HasTheSizeOfWhatThereIsToShow) {
  const struct {
    const char* source;
    bool shown;
  } cases[] = {
      {"ScoreWidget {}", false},
      {"ScoreWidget { clientId: 'shop'; token: undefined }", false},
      {"ScoreWidget { clientId: 'shop'; token: 'unreadable' }", false},
      {"ScoreWidget { token: 'TOKEN' }", false},
      {"ScoreWidget { clientId: 'shop'; token: 'TOKEN' }", true},
      {"InfoWidget {}", true},
  };
  for (const auto& tested : cases) {
    const QQuickItem* item = add(tested.source);
    EXPECT_EQ(item->implicitHeight() > 0, tested.shown) << tested.source;
    EXPECT_EQ(item->implicitWidth() > 0, tested.shown) << tested.source;
    EXPECT_EQ(item->size(), QSizeF(item->implicitWidth(), item->implicitHeight()));
  }
  const QQuickItem* layout = add(R"(
      RowLayout {
        width: 320
        InfoWidget { locale: "en"; Layout.fillWidth: true }
        Item { implicitWidth: 120 }
      })");
  const QQuickItem* wide = add("InfoWidget { locale: 'en' }");
  const QQuickItem* narrow = layout->childItems().constFirst();
  EXPECT_LT(narrow->width(), 200);
  EXPECT_GT(narrow->height(), wide->height());
  EXPECT_EQ(layout->implicitHeight(), narrow->implicitHeight());
}

TEST_F(QmlModule, IsMadeOnceForAllThatChangesInOneGo) {
  QQuickItem* page = add(R"(
      Item {
        property string shopper: "TOKEN"
        CountedScore {
          visible: implicitHeight > 0
          width: 300; clientId: "shop"; token: parent.shopper; locale: "en"; regularFont: "A"
        }
      })");
  QQuickItem* row = page->childItems().constFirst();
  EXPECT_EQ(made(), 1);
  page->setProperty("shopper", tokenOf(200));
  row->setProperty("locale", "es");
  row->setProperty("semiBoldFont", "B");
  EXPECT_EQ(made(), 0);
  screen.settle();
  EXPECT_EQ(made(), 1);
  row->setProperty("locale", "es");
  row->setProperty("appearance", qml::WidgetItem::Dark);
  row->setProperty("layoutDirection", Qt::RightToLeft);
  screen.settle();
  EXPECT_EQ(made(), 0);
  // What shows nothing and is hidden for it comes back by itself.
  for (const bool shown : {false, true}) {
    page->setProperty("shopper", shown ? tokenOf(100) : "gone");
    screen.settle();
    EXPECT_EQ(row->isVisible(), shown);
    EXPECT_EQ(made(), 1);
  }
}

TEST_F(QmlModule, ANewTokenStandsWhereTheOldOneStood) {
  auto* row = add(R"(
      ScoreWidget {
        y: 40; width: 300; clientId: "shop"; token: "TOKEN"; locale: "en"; animated: false
      })");
  screen.addFocusable();
  screen.key(Qt::Key_Tab);
  ASSERT_TRUE(row->hasActiveFocus());
  const QImage before = screen.grab();
  row->setProperty("token", tokenOf(200));
  const QImage after = screen.grab();  // the first frame
  EXPECT_NE(after, before);
  screen.settle();
  EXPECT_EQ(screen.grab(), after);
  row->setProperty("token", tokenOf(300));
  EXPECT_EQ(screen.grab(), before) << "the ring is where it was";
  screen.key(Qt::Key_Space);
  screen.settle();
  EXPECT_TRUE(screen.shows("Close"));
  row->setProperty("token", tokenOf(200));
  screen.settle();
  EXPECT_FALSE(screen.shows("Close"));
}

TEST_F(QmlModule, AListMakesARowOnceForEachPlaceItTakes) {
  QQuickItem* list = add(R"(
      ListView {
        property int taken
        width: 320; height: 400; model: 200; reuseItems: true; spacing: 8
        delegate: CountedScore {
          required property int index
          width: ListView.view.width; clientId: "shop" + index; token: "TOKEN"
          locale: index % 2 ? "en" : "es"
          Component.onCompleted: ++ListView.view.taken
          ListView.onReused: ++ListView.view.taken
        }
      })");
  for (int y = 0; y < 8000; y += 330) {
    list->setProperty("contentY", y);
    screen.settle();
  }
  const int taken = list->property("taken").toInt();
  EXPECT_GT(taken, 100);
  EXPECT_EQ(made(), taken);
}

TEST_F(QmlModule, IsImportedByAFileThatKnowsNothingElse) {
  QQmlEngine engine;
  QQmlComponent component(&engine, QUrl::fromLocalFile(TEST_DATA "/qml/Page.qml"));
  const std::unique_ptr<QObject> page(component.create());
  ASSERT_TRUE(page) << component.errorString().toStdString();
  page->setProperty("shopper", tokenOf(300));
  EXPECT_TRUE(waitUntil([&] { return page->property("hasRow").toBool(); }));
}

}  // namespace
}  // namespace quorix::testing

#include "QmlModuleTest.moc"
