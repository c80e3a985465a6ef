#include "examples/shop/widgets/Notice.h"

#include <QAccessible>
#include <QPainter>
#include <QStyle>
#include <QSvgRenderer>

namespace quorix::examples {
namespace {

constexpr int tall = 44;
constexpr int beside = 16;  // at both sides
constexpr int check = 20;   // diameter of the check mark
constexpr int between = 8;

}  // namespace

Notice::Notice(int footerHeight, QWidget* parent) : QWidget(parent), footerHeight_(footerHeight) {
  setAttribute(Qt::WA_TransparentForMouseEvents);
  QFont face = font();
  face.setPixelSize(14);
  setFont(face);
  hide();
  away_.setSingleShot(true);
  away_.setInterval(2400);
  connect(&away_, &QTimer::timeout, this, &QWidget::hide);
}

void Notice::say(const QString& words) {
  words_ = words;
  setAccessibleName(words);
  place();
  show();
  raise();
  update();
  away_.start();
  QAccessibleEvent alert(this, QAccessible::Alert);
  QAccessible::updateAccessibility(&alert);
}

void Notice::place() {
  const int most = parentWidget()->width() - 2 * beside;
  const int wish = fontMetrics().horizontalAdvance(words_) + 2 + check + between + 2 * beside;
  resize(qMin(wish, most), tall);
  move((parentWidget()->width() - width()) / 2,
       parentWidget()->height() - footerHeight_ - 14 - tall);
}

void Notice::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(Qt::NoPen);
  painter.setBrush(palette().toolTipBase());
  painter.drawRoundedRect(rect(), tall / 2, tall / 2);
  const auto at = [this](QRect place) {
    return QStyle::visualRect(layoutDirection(), rect(), place);
  };
  const QRect mark = at({beside, (tall - check) / 2, check, check});
  painter.setBrush(QColor("#2e8b6a"));
  painter.drawEllipse(mark);
  QSvgRenderer(QStringLiteral(":/shop/art/check.svg"))
      .render(&painter, mark.adjusted(4, 4, -4, -4));
  painter.setPen(palette().color(QPalette::ToolTipText));
  const int start = beside + check + between;
  const QRect room = at({start, 0, width() - start - beside, tall});
  painter.drawText(
      room, int(QStyle::visualAlignment(layoutDirection(), Qt::AlignLeft) | Qt::AlignVCenter),
      painter.fontMetrics().elidedText(words_, Qt::ElideRight, room.width()));
}

}  // namespace quorix::examples
