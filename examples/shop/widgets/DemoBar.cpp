#include "examples/shop/widgets/DemoBar.h"

#include <QGridLayout>
#include <QLabel>
#include <QPainter>

#include "examples/shop/Shop.h"
#include "examples/shop/widgets/ChoiceBox.h"

namespace quorix::examples {
namespace {

constexpr int tagWidth = 24;

}  // namespace

DemoBar::DemoBar(Shop& shop, QWidget* parent) : QWidget(parent) {
  setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
  auto* grid = new QGridLayout(this);
  grid->setContentsMargins(tagWidth + 10, 10, 10, 10);
  grid->setSpacing(8);
  grid->setColumnStretch(0, 12);
  grid->setColumnStretch(1, 10);

  const auto add = [&](const char* caption, const QStringList& values, int row, int column,
                       int (Shop::*chosen)() const, void (Shop::*choose)(int)) {
    auto* choice = new ChoiceBox(QLatin1String(caption), values, this);
    choice->setCurrentIndex((shop.*chosen)());
    connect(choice, &QComboBox::activated, &shop, choose);
    connect(&shop, &Shop::changed, choice,
            [choice, &shop, chosen] { choice->setCurrentIndex((shop.*chosen)()); });
    grid->addWidget(choice, row, column);
    // A screen reader says this before the value. On screen it is part of the choice.
    auto* label = new QLabel(QLatin1String(caption), this);
    label->setBuddy(choice);
    label->hide();
  };
  add("Shopper", shop.shoppers(), 0, 0, &Shop::shopperIndex, &Shop::chooseShopper);
  add("Language", shop.languages(), 0, 1, &Shop::languageIndex, &Shop::chooseLanguage);
  add("Appearance", shop.appearances(), 1, 0, &Shop::appearanceIndex, &Shop::chooseAppearance);
  add("Text", shop.faces(), 1, 1, &Shop::faceIndex, &Shop::chooseFace);
}

void DemoBar::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  painter.fillRect(rect(), QColor("#20242f"));
  painter.fillRect(0, 0, tagWidth, height(), QColor("#ffc24b"));
  QFont face = font();
  face.setPixelSize(11);
  face.setWeight(QFont::Bold);
  face.setLetterSpacing(QFont::AbsoluteSpacing, 2);
  painter.setFont(face);
  painter.setPen(QColor("#20242f"));
  painter.translate(0, height());
  painter.rotate(-90);
  painter.drawText(QRect(0, 0, height(), tagWidth), Qt::AlignCenter, QStringLiteral("DEMO"));
}

}  // namespace quorix::examples
