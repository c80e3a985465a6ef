#include "examples/shop/widgets/WidgetsWindow.h"

#include <QApplication>
#include <QShortcut>
#include <QStyleFactory>
#include <QVBoxLayout>

#include "examples/shop/Shop.h"
#include "examples/shop/widgets/DemoBar.h"
#include "examples/shop/widgets/DemoNote.h"
#include "examples/shop/widgets/ShopScreen.h"

namespace quorix::examples {
namespace {

/// The shop's colors by role, so that Qt's widgets, the shop's own and the library's use the same
/// palette.
QPalette paletteOf(const ShopColors& colors) {
  QPalette palette(colors.page, colors.page);  // for the shades that the style derives
  palette.setColor(QPalette::WindowText, colors.ink);
  palette.setColor(QPalette::Base, colors.page);
  palette.setColor(QPalette::AlternateBase, colors.stage);
  palette.setColor(QPalette::Text, colors.ink);
  palette.setColor(QPalette::PlaceholderText, colors.quiet);
  palette.setColor(QPalette::ButtonText, colors.ink);
  palette.setColor(QPalette::Mid, colors.hairline);
  palette.setColor(QPalette::Highlight, colors.accent);
  palette.setColor(QPalette::HighlightedText, colors.accentInk);
  palette.setColor(QPalette::Link, colors.accent);
  palette.setColor(QPalette::ToolTipBase, colors.notice);
  palette.setColor(QPalette::ToolTipText, colors.noticeInk);
  return palette;
}

}  // namespace

WidgetsWindow::WidgetsWindow(Shop& shop) : shop_(shop) {
  setWindowTitle(QStringLiteral("Fjord & Thread (Qt Widgets)"));
  setMinimumSize(340, 480);
  resize(430, 860);
  auto* body = new QWidget(this);
  auto* all = new QVBoxLayout(body);
  all->setContentsMargins(0, 0, 0, 0);
  all->setSpacing(0);
  all->addWidget(new DemoBar(shop, body));
  all->addWidget(new ShopScreen(shop, body), 1);
  setCentralWidget(body);
  new DemoNote(shop, this);
  auto* quit = new QShortcut(QKeySequence(Qt::CTRL | Qt::Key_Q), this);
  connect(quit, &QShortcut::activated, qApp, &QApplication::quit);
  const auto follow = [this] { setPalette(paletteOf(shop_.colors())); };
  connect(&shop, &Shop::changed, this, follow);
  follow();
}

}  // namespace quorix::examples
