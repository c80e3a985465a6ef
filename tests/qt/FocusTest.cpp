#include "tests/qt/Pixels.h"
#include "tests/qt/Screens.h"
#include "tests/web/LogListener.h"

namespace quorix::testing {
namespace {

using swiftui::Text;
using swiftui::View;

SCREENS_TEST_SUITE(Focus);

TYPED_TEST(Focus, TabReachesTheRowShowsARingAroundItAndLeaves) {
  TypeParam screen;
  auto* other = screen.addFocusable();
  auto* row = screen.add(FeeRow("4 €"), kPlace);
  const QRect place = screen.placeOf(row);
  const QImage plain = screen.grab();
  screen.key(Qt::Key_Tab);
  EXPECT_TRUE(screen.hasFocus(row));
  const QRect ring = differing(plain, screen.grab());
  EXPECT_GE(ring.width(), place.width());
  EXPECT_TRUE(place.adjusted(-5, -5, 5, 5).contains(ring));
  screen.key(Qt::Key_Tab);
  EXPECT_TRUE(screen.hasFocus(other));
  EXPECT_EQ(screen.grab(), plain);
  screen.key(Qt::Key_Backtab, Qt::ShiftModifier);
  EXPECT_TRUE(screen.hasFocus(row));
  // A press takes or keeps the focus and shows no ring.
  for (const bool before : {true, false}) {
    if (!before) screen.focus(other);
    QTest::mousePress(&screen.window(), Qt::LeftButton, {}, place.center());
    screen.settle();
    EXPECT_TRUE(screen.hasFocus(row));
    EXPECT_EQ(screen.grab(), plain);
    QTest::mouseRelease(&screen.window(), Qt::LeftButton, {}, {1, 300});
  }
}

TYPED_TEST(Focus, ReturnsToWhatAssistiveTechnologyPressedAlsoIfItComesLate) {
  TypeParam screen;
  auto* other = screen.addFocusable();
  auto* row = screen.add(FeeRow("4 €"), kPlace);
  const QPoint place = screen.centerOf("Row 4 €");
  screen.focus(other);
  screen.act("Row 4 €", QAccessibleActionInterface::pressAction());
  ASSERT_TRUE(screen.shows("Terms"));
  screen.key(Qt::Key_Escape);
  EXPECT_TRUE(screen.hasFocus(row));
  QAccessible::setActive(false);
  screen.clickAt(place);
  QAccessible::setActive(true);
  screen.settle();
  EXPECT_TRUE(screen.shows("Terms"));
}

/// An element and its children: role, name and description, and whether it is focusable and
/// focused.
std::string printed(QAccessibleInterface* element, const std::string& indent = {}) {
  std::string text = indent + QVariant::fromValue(element->role()).toString().toStdString();
  for (const auto kind : {QAccessible::Name, QAccessible::Description}) {
    const QString words = element->text(kind);
    if (!words.isEmpty()) text += " \"" + words.toStdString() + '"';
  }
  if (element->state().modal) text += " modal";
  if (element->state().focusable) text += " focusable";
  if (element->state().focused) text += " focused";
  auto* const actions = element->actionInterface();
  if (actions && !actions->actionNames().isEmpty()) text += " acts";
  text += '\n';
  for (int i = 0; i < element->childCount(); ++i) text += printed(element->child(i), indent + "  ");
  return text;
}

TYPED_TEST(Focus, WalksThroughTheElementsThatActAndOnInAGroupInReadingOrder) {
  TypeParam screen;
  std::string taps;
  const auto button = [&](const char* name) {
    return View(Text::verbatim(name)).onTapGesture([&taps, name] { taps += name; });
  };
  const View heading = View(Text::verbatim("Title"))
                           .accessibilityAddTraits(swiftui::AccessibilityTrait::isHeader)
                           .accessibilityHint(Text::verbatim("Hint"));
  auto* before = screen.addFocusable();
  auto* view =
      screen.add(swiftui::VStack(layout::HorizontalAlignment::leading, 4,
                                 {heading, button("A"), Text::verbatim("text"), button("B")}),
                 kPlace);
  for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Space}) {
    screen.key(Qt::Key_Tab);
    screen.key(key);
  }
  EXPECT_EQ(taps, "AB");
  EXPECT_TRUE(screen.hasFocus(view));
  QAccessibleInterface* group = QAccessible::queryAccessibleInterface(view);
  EXPECT_EQ(printed(group),
            "Grouping\n"
            "  Heading \"Title\" \"Hint\"\n"
            "  Button \"A\" focusable acts\n"
            "  StaticText \"text\"\n"
            "  Button \"B\" focusable focused acts\n");
  EXPECT_EQ(group->focusChild(), group->child(3));
  for (int i = 0; i < group->childCount(); ++i) {
    const QPoint middle = group->child(i)->rect().center();
    EXPECT_EQ(group->childAt(middle.x(), middle.y()), group->child(i));
  }
  screen.key(Qt::Key_Tab);
  EXPECT_TRUE(screen.hasFocus(before));
  screen.key(Qt::Key_Return);
  screen.key(Qt::Key_Backtab, Qt::ShiftModifier);
  screen.key(Qt::Key_Select);
  screen.key(Qt::Key_Tab, Qt::ShiftModifier);
  screen.key(Qt::Key_Enter);
  EXPECT_EQ(taps, "ABBA");
  screen.act("B", QAccessibleActionInterface::pressAction());
  EXPECT_EQ(taps, "ABBAB");
}

TYPED_TEST(Focus, LeavesAViewInWhichNothingActsAnyMoreUnlessNothingElseTakesIt) {
  const struct {
    bool isAlone, behindASheet, empty;
  } rows[] = {{false, false, true},
              {false, false, false},
              {false, true, true},
              {false, true, false},
              {true, false, true}};
  for (const auto& [isAlone, behindASheet, empty] : rows) {
    SCOPED_TRACE(::testing::Message() << isAlone << behindASheet << empty);
    TypeParam screen;
    auto* first = isAlone ? nullptr : screen.addFocusable();
    auto* row = screen.add(FeeRow("4 €"), kPlace);
    auto* next = isAlone ? nullptr : screen.addFocusable();
    screen.focus(row);
    if (behindASheet) screen.key(Qt::Key_Return);
    ASSERT_EQ(screen.hasFocus(row), !behindASheet);
    const LogListener log;
    row->setView(empty ? View() : View(Text::verbatim("Text")));
    screen.settle();
    EXPECT_TRUE(isAlone ? !screen.hasFocus(row) : screen.hasFocus(next));
    if (isAlone) row->setView(FeeRow("9 €"));
    screen.settle();
    screen.key(Qt::Key_Tab);
    EXPECT_TRUE(isAlone ? screen.hasFocus(row) : screen.hasFocus(first));
    EXPECT_TRUE(LogListener::lines().isEmpty());
  }
}

}  // namespace
}  // namespace quorix::testing
