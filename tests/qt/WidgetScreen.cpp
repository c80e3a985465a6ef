#include "tests/qt/WidgetScreen.h"

#include <QApplication>
#include <QEvent>

namespace quorix::testing {
namespace {

/// Counts what the pointer does on it.
class Listener : public QWidget {
 public:
  explicit Listener(QWidget* parent) : QWidget(parent) {
    setMouseTracking(true);
    setAttribute(Qt::WA_AcceptTouchEvents);
  }
  int events = 0;

 protected:
  bool event(QEvent* event) override {
    switch (event->type()) {
      case QEvent::MouseButtonPress:
      case QEvent::MouseButtonRelease:
      case QEvent::MouseMove:
      case QEvent::Wheel:
      case QEvent::TouchBegin:
      case QEvent::ContextMenu:
        ++events;
        return true;
      default:
        return QWidget::event(event);
    }
  }
};

}  // namespace

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
  auto* listener = new Listener(host_.get());
  listener->resize(host_->size());
  listener->show();
  return [listener] { return listener->events; };
}

}  // namespace quorix::testing
