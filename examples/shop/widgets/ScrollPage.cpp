#include "examples/shop/widgets/ScrollPage.h"

#include <QAbstractScrollArea>
#include <QEvent>
#include <QHBoxLayout>
#include <QPainter>

namespace quorix::examples {
namespace {

constexpr int thick = 10;

}  // namespace

OverlayScrollBar::OverlayScrollBar(QAbstractScrollArea& area)
    : QScrollBar(Qt::Vertical, &area), area_(area) {
  area.setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  area.installEventFilter(this);
  const QScrollBar& scrolling = *area.verticalScrollBar();
  connect(&scrolling, &QScrollBar::rangeChanged, this, &OverlayScrollBar::follow);
  connect(&scrolling, &QScrollBar::valueChanged, this, &QScrollBar::setValue);
  connect(this, &QScrollBar::valueChanged, &scrolling, &QScrollBar::setValue);
  follow();
}

bool OverlayScrollBar::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() == QEvent::Resize || event->type() == QEvent::LayoutDirectionChange) follow();
  return QScrollBar::eventFilter(watched, event);
}

void OverlayScrollBar::follow() {
  const QScrollBar& scrolling = *area_.verticalScrollBar();
  setRange(scrolling.minimum(), scrolling.maximum());
  setPageStep(scrolling.pageStep());
  setSingleStep(scrolling.singleStep());
  setValue(scrolling.value());
  setVisible(maximum() > minimum());
  setGeometry(area_.isRightToLeft() ? 0 : area_.width() - thick, 0, thick, area_.height());
  raise();
}

void OverlayScrollBar::paintEvent(QPaintEvent*) {
  const double whole = maximum() - minimum() + pageStep();
  const double length = qMax(24.0, height() * pageStep() / whole);
  const double way = (height() - length) * (value() - minimum()) / qMax(1, maximum() - minimum());
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(Qt::NoPen);
  QColor color = palette().color(QPalette::PlaceholderText);
  color.setAlphaF(underMouse() || isSliderDown() ? 0.7F : 0.35F);
  painter.setBrush(color);
  painter.drawRoundedRect(QRectF(3, way + 2, 5, length - 4), 2.5, 2.5);
}

namespace {

constexpr int readable = 560;  // pixels; the widest readable column
constexpr int margin = 20;

}  // namespace

ScrollPage::ScrollPage(QWidget* parent) : QScrollArea(parent) {
  setFrameShape(QFrame::NoFrame);
  setFocusPolicy(Qt::NoFocus);  // its children get the focus and scroll into view
  setWidgetResizable(true);
  setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  new OverlayScrollBar(*this);
  auto* body = new QWidget;
  auto* middle = new QWidget(body);
  middle->setMaximumWidth(readable + 2 * margin);
  column_ = new QVBoxLayout(middle);
  column_->setContentsMargins(margin, 18, margin, 24);
  column_->setSpacing(0);
  auto* centered = new QHBoxLayout;
  centered->addStretch(1);
  centered->addWidget(middle, 1000);
  centered->addStretch(1);
  page_ = new QVBoxLayout(body);
  page_->setContentsMargins(0, 0, 0, 0);
  page_->setSpacing(0);
  page_->addLayout(centered);
  page_->addStretch(1);
  setWidget(body);
}

void ScrollPage::setBanner(QWidget* widget) {
  page_->insertWidget(0, widget);
  widget->lower();  // screen readers read it first
}

}  // namespace quorix::examples
