#include "examples/shop/widgets/ChoiceBox.h"

#include <QListView>
#include <QPainter>
#include <QWheelEvent>

#include "examples/shop/widgets/FocusShown.h"

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
  // The open list keeps back the event that the pointer has left.
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

// Ignored: scrolling over the bar would switch shoppers.
void ChoiceBox::wheelEvent(QWheelEvent* event) { event->ignore(); }

}  // namespace quorix::examples
