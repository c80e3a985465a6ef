#include <gtest/gtest.h>

#include <QAccessible>

#include "tests/qt/FeeRow.h"
#include "tests/qt/Screens.h"

namespace quorix::testing {
namespace {

using swiftui::Text;
using swiftui::View;

constexpr QRectF kPlace(20, 40, 300, 0);

template <class>
struct Accessible : ::testing::Test {};
TYPED_TEST_SUITE(Accessible, Screens, ScreenName);

int childrenNamed(QAccessibleInterface* parent, const QString& name) {
  int count = 0;
  for (int i = 0; i < parent->childCount(); ++i) {
    count += parent->child(i)->text(QAccessible::Name) == name;
  }
  return count;
}

TYPED_TEST(Accessible, ARowIsExactlyOneButtonOfItsWindow) {
  TypeParam screen;
  auto* row = screen.add(FeeRow("4 €"), kPlace);
  QAccessibleInterface* button = screen.find("Row 4 €");
  ASSERT_TRUE(button);
  QAccessibleInterface* window = button->parent();
  EXPECT_EQ(window->rect().size(), screen.window().size());
  EXPECT_EQ(childrenNamed(window, "Row 4 €"), 1);
  EXPECT_EQ(button->role(), QAccessible::Button);
  EXPECT_EQ(button->childCount(), 0);
  EXPECT_EQ(button->text(QAccessible::Description), "Opens details");
  EXPECT_TRUE(button->state().focusable);
  EXPECT_FALSE(button->state().focused);
  const QRect place = screen.placeOf(row);
  EXPECT_EQ(button->rect(), QRect(screen.window().mapToGlobal(place.topLeft()), place.size()));
  ASSERT_TRUE(button->actionInterface());
  button->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
  screen.settle();
  EXPECT_TRUE(screen.shows("Fee 4 €"));
}

TYPED_TEST(Accessible, SeveralElementsStandInAGroupInReadingOrder) {
  TypeParam screen;
  int taps = 0;
  const View heading =
      View(Text::verbatim("Title")).accessibilityAddTraits(swiftui::AccessibilityTrait::isHeader);
  auto* item =
      screen.add(swiftui::VStack(layout::HorizontalAlignment::leading, 4,
                                 {heading, Text::verbatim("Text"),
                                  View(Text::verbatim("Press")).onTapGesture([&taps] { ++taps; })}),
                 kPlace);
  QAccessibleInterface* group = QAccessible::queryAccessibleInterface(item);
  ASSERT_TRUE(group);
  EXPECT_EQ(group->role(), QAccessible::Grouping);
  const std::pair<QString, QAccessible::Role> expected[] = {
      {"Title", QAccessible::Heading},
      {"Text", QAccessible::StaticText},
      {"Press", QAccessible::Button},
  };
  ASSERT_EQ(group->childCount(), 3);
  for (int i = 0; i < 3; ++i) {
    QAccessibleInterface* child = group->child(i);
    EXPECT_EQ(child->text(QAccessible::Name), expected[i].first);
    EXPECT_EQ(child->role(), expected[i].second);
    EXPECT_EQ(child->state().focusable, i == 2);
    EXPECT_EQ(child->actionInterface()->actionNames().isEmpty(), i != 2);
    EXPECT_EQ(group->childAt(child->rect().center().x(), child->rect().center().y()), child);
  }
  group->child(2)->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
  EXPECT_EQ(taps, 1);
  screen.addFocusable();
  screen.key(Qt::Key_Tab);
  EXPECT_EQ(group->focusChild(), group->child(2));
}

TYPED_TEST(Accessible, ASheetIsAModalDialogAndCoversTheRest) {
  TypeParam screen;
  screen.add(FeeRow("4 €"), kPlace);
  screen.click("Row 4 €");
  QAccessibleInterface* text = screen.find("Fee 4 €");
  ASSERT_TRUE(text);
  QAccessibleInterface* dialog = text->parent();
  EXPECT_EQ(dialog->role(), QAccessible::Dialog);
  EXPECT_TRUE(dialog->state().modal);
  EXPECT_EQ(dialog->childCount(), 3);
  EXPECT_FALSE(screen.shows("Row 4 €"));
  screen.find("Close 4 €")->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
  screen.settle();
  EXPECT_FALSE(screen.shows("Fee 4 €"));
  EXPECT_TRUE(screen.shows("Row 4 €"));
}

}  // namespace
}  // namespace quorix::testing
