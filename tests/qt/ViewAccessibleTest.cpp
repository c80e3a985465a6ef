#include "tests/qt/Screens.h"

namespace quorix::testing {
namespace {

using swiftui::Text;
using swiftui::View;

SCREENS_TEST_SUITE(Accessible);

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

TYPED_TEST(Accessible, SeveralElementsStandInAGroupInReadingOrder) {
  TypeParam screen;
  int taps = 0;
  const View heading = View(Text::verbatim("Title"))
                           .accessibilityAddTraits(swiftui::AccessibilityTrait::isHeader)
                           .accessibilityHint(Text::verbatim("Hint"));
  auto* item =
      screen.add(swiftui::VStack(layout::HorizontalAlignment::leading, 4,
                                 {heading, Text::verbatim("Text"),
                                  View(Text::verbatim("Press")).onTapGesture([&taps] { ++taps; })}),
                 kPlace);
  QAccessibleInterface* group = QAccessible::queryAccessibleInterface(item);
  screen.addFocusable();
  screen.key(Qt::Key_Tab);
  EXPECT_EQ(printed(group),
            "Grouping\n"
            "  Heading \"Title\" \"Hint\"\n"
            "  StaticText \"Text\"\n"
            "  Button \"Press\" focusable focused acts\n");
  for (int i = 0; i < group->childCount(); ++i) {
    const QPoint middle = group->child(i)->rect().center();
    EXPECT_EQ(group->childAt(middle.x(), middle.y()), group->child(i));
  }
  EXPECT_EQ(group->focusChild(), group->child(2));
  screen.act("Press", QAccessibleActionInterface::pressAction());
  EXPECT_EQ(taps, 1);
}

TYPED_TEST(Accessible, AReaderThatComesLateFindsTheSheet) {
  TypeParam screen;
  screen.add(FeeRow("4 €"), kPlace);
  const QPoint row = screen.centerOf("Row 4 €");
  QAccessible::setActive(false);
  screen.clickAt(row);
  QAccessible::setActive(true);
  screen.settle();
  EXPECT_TRUE(screen.shows("Terms"));
}

}  // namespace
}  // namespace quorix::testing
