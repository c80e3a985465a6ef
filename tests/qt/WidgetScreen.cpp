#include "tests/qt/Screens.h"

#include <QApplication>
#include <QEvent>
#include <algorithm>
#include <iterator>

namespace quorix::testing {
WidgetScreen::WidgetScreen() : host_(std::make_unique<QWidget>()) {
  qApp->installEventFilter(this);
  host_->resize(kSize);
  host_->show();
  waitUntilActive();
}

WidgetScreen::~WidgetScreen() = default;

bool WidgetScreen::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() == QEvent::Paint && host_) {
    auto* widget = qobject_cast<QWidget*>(watched);
    if (widget && widget->window() == host_.get()) countFrame();
  }
  const QEvent::Type pointed[] = {QEvent::MouseButtonPress, QEvent::MouseButtonRelease,
                                  QEvent::MouseMove,        QEvent::Wheel,
                                  QEvent::TouchBegin,       QEvent::ContextMenu};
  if (below_ && watched == below_) {
    eventsBelow_ += std::count(std::begin(pointed), std::end(pointed), event->type());
  }
  return false;
}

qt::ViewWidget* WidgetScreen::add(swiftui::View view, QRectF place) {
  auto* widget = new qt::ViewWidget(std::move(view), host_.get());
  widget->setMotion(false);
  const QRect fixed = place.toRect();
  widget->setGeometry(fixed.x(), fixed.y(), fixed.width(),
                      place.height() > 0 ? fixed.height() : widget->heightForWidth(fixed.width()));
  widget->show();
  settle();
  return widget;
}

void WidgetScreen::adopt(qt::ViewWidget* widget) {
  widget->setParent(host_.get());
  widget->show();
}

QWidget* WidgetScreen::addFocusable() {
  auto* widget = new QWidget(host_.get());
  widget->resize(10, 10);
  widget->setFocusPolicy(Qt::StrongFocus);
  widget->show();
  widget->setFocus();
  return widget;
}

std::function<int()> WidgetScreen::listenBelow() {
  below_ = new QWidget(host_.get());
  below_->setMouseTracking(true);
  below_->setAttribute(Qt::WA_AcceptTouchEvents);
  below_->resize(host_->size());
  below_->show();
  return [this] { return static_cast<int>(eventsBelow_); };
}

}  // namespace quorix::testing
