#include "qt/widgets/WidgetSurface.h"

#include <QFocusFrame>
#include <QPainter>
#include <QProxyStyle>
#include <algorithm>
#include <cmath>

#include "platform/hosting/FocusRing.h"
#include "qt/Desktop.h"
#include "qt/Picture.h"
#include "qt/WindowScene.h"
#include "qt/painting/FocusRing.h"
#include "qt/widgets/SheetWidget.h"
#include "qt/widgets/WindowStateWatcher.h"

namespace quorix::qt {

namespace {

constexpr int kMargin = int(hosting::FocusRing::outset);

/// Makes room for the ring, above the other widgets in the parent.
class FrameStyle : public QProxyStyle {
 public:
  int pixelMetric(PixelMetric metric, const QStyleOption* option,
                  const QWidget* widget) const override {
    const bool margin = metric == PM_FocusFrameHMargin || metric == PM_FocusFrameVMargin;
    return margin ? kMargin : QProxyStyle::pixelMetric(metric, option, widget);
  }
  int styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                QStyleHintReturn* result) const override {
    if (hint == SH_FocusFrame_AboveWidget) return 1;
    if (hint == SH_FocusFrame_Mask) return 0;
    return QProxyStyle::styleHint(hint, option, widget, result);
  }
};

}  // namespace

/// The focus ring of a view widget. It reaches beyond the widget, which cannot paint outside of
/// itself, and follows the widget. A child of one of the widget's ancestors; main thread.
class FocusFrame : public QFocusFrame {
 public:
  explicit FocusFrame(QWidget& widget) : QFocusFrame(&widget) {
    auto* style = new FrameStyle;
    style->setParent(this);
    setStyle(style);
    setWidget(&widget);
  }

  /// Goes around the element at `element` in the widget.
  void goAround(const layout::Rect& element, graphics::Appearance appearance) {
    element_ = element;
    appearance_ = appearance;
    update();
  }

 protected:
  void paintEvent(QPaintEvent*) override {
    QPainter painter(this);
    const QRectF around = FocusRing::frameAround(element_).translated(kMargin, kMargin);
    FocusRing::paint(painter, around.intersected(rect()), appearance_);
  }

 private:
  layout::Rect element_;
  graphics::Appearance appearance_ = graphics::Appearance::light;
};

namespace {

/// Rounds `points` up to whole pixels, except for the rounding errors of additions.
int wholePixels(double points) {
  constexpr double slack = 1.0 / 256;
  return static_cast<int>(std::clamp(std::ceil(points - slack), 0.0, double(QWIDGETSIZE_MAX)));
}

/// Whether a part of `widget` is inside all its ancestors. A widget that is scrolled away is not,
/// though Qt calls it visible.
bool isInView(const QWidget& widget) {
  QRect left = widget.rect();
  for (const QWidget* at = &widget; !at->isWindow() && !left.isEmpty(); at = at->parentWidget()) {
    left = left.translated(at->pos()).intersected(at->parentWidget()->rect());
  }
  return !left.isEmpty();
}

}  // namespace

WidgetSurface::WidgetSurface(ViewWidget& widget)
    : HostedView(widget, widget.settings()),
      WidgetAccessibleSurface(widget, *this),
      widget_(widget) {}

swiftui::Environment WidgetSurface::environment() const {
  swiftui::Environment around = Desktop::environment(scale());
  around.appearance = Desktop::appearanceOf(widget_.palette());
  around.direction = Desktop::directionOf(widget_.layoutDirection());
  return widget_.settings().over(around);
}

void WidgetSurface::giveFocusOn() {
  if (!widget_.focusNextPrevChild(true)) widget_.clearFocus();
}

hosting::WindowSession* WidgetSurface::window() {
  QWidget* window = widget_.window();
  const auto newSheet = [window](WindowScene & scene, auto*) -> auto& {
    return newSheetWidget(*window, scene);
  };
  return &WindowScene::of(*window, {[window] { return window->windowHandle(); }, newSheet});
}

// Place.

void WidgetSurface::placeChanged() {
  QWidget* window = widget_.window();
  const bool moved = window != window_;
  if (moved) {
    leaveWindow();
    WindowStateWatcher::watch(*window);
    window_ = window;
  }
  onScreenChanged();  // before a size is needed, so that the view is evaluated once
  settingsChanged();
  if (moved) enterWindow();
}

void WidgetSurface::onScreenChanged() {
  host().setOnScreen(isOnScreen());
  needsFrame();
}

// Size.

QSize WidgetSurface::sizeFor(layout::ProposedSize proposal) {
  const layout::Size size = host().sizeThatFits(proposal);
  return {wholePixels(size.width), wholePixels(size.height)};
}

QSize WidgetSurface::tell(Told& told, layout::ProposedSize proposal) {
  const QSize answer = sizeFor(proposal);
  told = {{proposal, answer}};
  return answer;
}

QSize WidgetSurface::idealSize() { return tell(ideal_, {}); }

/// The height at the least width is the answer of `heightFor`.
QSize WidgetSurface::minimumSize() {
  return {tell(least_, {0, std::nullopt}).width(), idealSize().height()};
}

int WidgetSurface::heightFor(int width) { return tell(fitted_, {width, std::nullopt}).height(); }

void WidgetSurface::sizeChanged() {
  resized();
  settle();
}

// Frame.

void WidgetSurface::viewNeedsDisplay() {
  sizeStale_ = true;
  HostedView::viewNeedsDisplay();
}

void WidgetSurface::needsFrame() {
  if (std::exchange(settleQueued_, true)) return;
  QMetaObject::invokeMethod(
      &widget_, [this] { settleQueued_ = false, settle(); }, Qt::QueuedConnection);
}

void WidgetSurface::settle() {
  if (std::exchange(sizeStale_, false)) {
    const auto holds = [this](const Told& told) {
      return !told || sizeFor(told->first) == told->second;
    };
    if (!holds(ideal_) || !holds(least_) || !holds(fitted_)) {
      ideal_ = least_ = fitted_ = std::nullopt;
      widget_.updateGeometry();
    }
  }
  if (isOnScreen() && refreshScene()) widget_.update();
  updateRing();
  rest(isOnScreen() && isInView(widget_));
}

void WidgetSurface::updateRing() {
  const auto around = ringFrame();
  if (!around) return dropRing();
  if (!ring_) ring_ = new FocusFrame(widget_);
  ring_->goAround(*around, host().environment().appearance);
}

void WidgetSurface::dropRing() {
  if (!ring_) return;
  ring_->setWidget(nullptr);
  ring_->deleteLater();  // its parent may be iterating over its children
  ring_ = nullptr;
}

void WidgetSurface::paint(QPainter& painter) {
  // Qt tells a widget late, and not on every platform, that its window moved to another screen.
  if (scale() != host().environment().scale) settingsChanged();
  paintAsPicture(painter, host().scene(size()));
}
}  // namespace quorix::qt
