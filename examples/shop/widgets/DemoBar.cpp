#include "examples/shop/widgets/DemoBar.h"

#include <QGridLayout>
#include <QLabel>
#include <QListView>
#include <QPainter>
#include <QWheelEvent>

#include "examples/shop/Shop.h"
#include "examples/shop/widgets/Buttons.h"

namespace quorix::examples {
namespace {

QFont fontOf(const QWidget& widget, int pixels) {
  QFont font = widget.font();
  font.setPixelSize(pixels);
  return font;
}

constexpr const char* listLook =
    "QComboBox { combobox-popup: 0; }"
    "QListView { background: #2f3543; color: #ffffff; border: 1px solid #4a5369; padding: 4px;"
    "            outline: 0; font-size: 13px; }"
    "QListView::item { min-height: 34px; padding-left: 6px; padding-right: 6px;"
    "                  border-radius: 4px; }"
    "QListView::item:selected { background: #4a5369; color: #ffffff; }";

}  // namespace

ChoiceBox::ChoiceBox(const QString& caption, const QStringList& values, QWidget* parent)
    : QComboBox(parent), caption_(caption), arrow_(QStringLiteral(":/shop/art/expand.svg")) {
  setAttribute(Qt::WA_Hover);
  setAccessibleName(caption);
  setFocusPolicy(Qt::TabFocus);
  setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
  setView(new QListView(this));
  setStyleSheet(QLatin1String(listLook));
  addItems(values);
  const QFontMetrics metrics(fontOf(*this, 13));
  int widest = 0;
  for (const QString& value : values) widest = qMax(widest, metrics.horizontalAdvance(value));
  view()->setMinimumWidth(widest + 40);
}

void ChoiceBox::hidePopup() {
  QComboBox::hidePopup();
  // The open list blocks the leave event of the pointer.
  setAttribute(Qt::WA_UnderMouse, rect().contains(mapFromGlobal(QCursor::pos())));
  update();
}

void ChoiceBox::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(isFocusShown(*this) ? QPen(QColor("#ffc24b"), 2) : QPen(Qt::NoPen));
  painter.setBrush(QColor(underMouse() ? "#3a4152" : "#2f3543"));
  painter.drawRoundedRect(QRectF(rect()).adjusted(1, 0, -1, 0), 6, 6);
  arrow_.render(&painter, QRectF(width() - 19, (height() - 10) / 2, 10, 10));

  const int room = width() - 36;
  painter.setFont(fontOf(*this, 10));
  painter.setPen(QColor("#a3abbd"));
  painter.drawText(QRect(10, 4, room, 14), Qt::AlignLeft | Qt::AlignVCenter, caption_);
  painter.setFont(fontOf(*this, 13));
  painter.setPen(Qt::white);
  const QString value = painter.fontMetrics().elidedText(currentText(), Qt::ElideRight, room);
  painter.drawText(QRect(10, 18, room, 19), Qt::AlignLeft | Qt::AlignVCenter, value);
}

// Ignores the wheel: scrolling over the bar would switch shoppers.
void ChoiceBox::wheelEvent(QWheelEvent* event) { event->ignore(); }

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
    // Screen readers say this label before the value. On screen the choice shows the caption.
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
