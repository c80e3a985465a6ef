#pragma once

#include <QPainter>
#include <QPointer>
#include <algorithm>
#include <cmath>
#include <optional>
#include <utility>

#include "platform/hosting/ViewSession.h"
#include "qt/Desktop.h"
#include "qt/Picture.h"
#include "qt/WindowScene.h"
#include "qt/text/QtTextEngine.h"
#include "qt/widgets/FocusFrame.h"
#include "qt/widgets/SheetWidget.h"
#include "qt/widgets/ViewWidget.h"
#include "qt/widgets/WidgetAccessibleSurface.h"
#include "qt/widgets/WindowStateWatcher.h"

namespace quorix::qt {

/// The private part of a view widget. Main thread.
class WidgetSurface final : public hosting::ViewSession, public WidgetAccessibleSurface {
 public:
  explicit WidgetSurface(ViewWidget& widget)
      : ViewSession(QtTextEngine::shared()),
        WidgetAccessibleSurface(widget, *this),
        widget_(widget) {}

  ~WidgetSurface() override { dropRing(); }

  // For layouts.
  QSize idealSize() { return tell(ideal_, {}); }

  /// The height at the least width is the answer of `heightFor`.
  QSize minimumSize() { return {tell(least_, {0, std::nullopt}).width(), idealSize().height()}; }

  int heightFor(int width) { return tell(fitted_, {width, std::nullopt}).height(); }

  void contentChanged() override { settle(); }

  /// The widget was shown, or moved to another window.
  void placeChanged() {
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

  void onScreenChanged() {
    host().setOnScreen(isOnScreen());
    needsFrame();
  }

  void windowStateChanged() override { onScreenChanged(); }

  void sizeChanged() {
    resized();
    settle();
  }

  void paint(QPainter& painter) {
    // Qt tells a widget late, and not on every platform, that its window moved to another screen.
    if (scale() != host().environment().scale) settingsChanged();
    paintAsPicture(painter, host().scene(size()));
  }

 private:
  void viewNeedsDisplay() override {
    sizeStale_ = true;
    ViewSession::viewNeedsDisplay();
  }

  swiftui::Environment environment() const override {
    swiftui::Environment around = Desktop::environment(scale());
    around.appearance = Desktop::appearanceOf(widget_.palette());
    around.direction = Desktop::directionOf(widget_.layoutDirection());
    return widget_.settings().over(around);
  }
  bool allowsMotion() const override { return Desktop::allowsMotion(widget_.settings().motion); }

  layout::Size size() const override { return {double(widget_.width()), double(widget_.height())}; }
  double scale() const { return widget_.devicePixelRatioF(); }
  bool hasFocus() const override { return widget_.hasFocus(); }
  bool acceptsFocus() const override { return widget_.focusPolicy() != Qt::NoFocus; }
  void setAcceptsFocus(bool accepts) override {
    widget_.setFocusPolicy(accepts ? Qt::TabFocus : Qt::NoFocus);
  }
  void takeFocusByPress() override { widget_.setFocus(Qt::MouseFocusReason); }

  void giveFocusOn() override {
    if (!widget_.focusNextPrevChild(true)) widget_.clearFocus();
  }

  void needsFrame() override {
    if (std::exchange(settleQueued_, true)) return;
    QMetaObject::invokeMethod(
        &widget_, [this] { settleQueued_ = false, settle(); }, Qt::QueuedConnection);
  }

  hosting::WindowSession* window() override {
    QWidget* window = widget_.window();
    const auto newSheet = [window](WindowScene & scene, auto*) -> auto& {
      return newSheetWidget(*window, scene);
    };
    return &WindowScene::of(*window, {[window] { return window->windowHandle(); }, newSheet});
  }

  bool isRead() const override { return areRead(); }
  void sceneChanged() override { tellScene(); }
  void focusMoved(bool later) override { tellFocus(later); }

  void activated() override { emit widget_.activated(); }
  void sheetOpened() override { emit widget_.sheetOpened(); }
  void sheetClosed(hosting::SheetCloseReason reason) override {
    emit widget_.sheetClosed(static_cast<SheetCloseReason>(reason));
  }

  void desktopChanged() override { settingsChanged(); }

  /// An answer that layouts got. They lay out again only when one changes.
  using Told = std::optional<std::pair<layout::ProposedSize, QSize>>;

  bool isOnScreen() const { return widget_.isVisible() && !widget_.window()->isMinimized(); }

  void settle() {
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

  QSize tell(Told& told, layout::ProposedSize proposal) {
    const QSize answer = sizeFor(proposal);
    told = {{proposal, answer}};
    return answer;
  }

  void updateRing() {
    const auto around = ringFrame();
    if (!around) return dropRing();
    if (!ring_) ring_ = new FocusFrame(widget_);
    ring_->goAround(*around, host().environment().appearance);
  }

  void dropRing() {
    if (!ring_) return;
    ring_->setWidget(nullptr);
    ring_->deleteLater();  // its parent may be iterating over its children
    ring_ = nullptr;
  }

  QSize sizeFor(layout::ProposedSize proposal) {
    const layout::Size size = host().sizeThatFits(proposal);
    return {wholePixels(size.width), wholePixels(size.height)};
  }

  /// Rounds `points` up to whole pixels, except for the rounding errors of additions.
  static int wholePixels(double points) {
    constexpr double slack = 1.0 / 256;
    return static_cast<int>(std::clamp(std::ceil(points - slack), 0.0, double(QWIDGETSIZE_MAX)));
  }

  /// Whether a part of `widget` is inside all its ancestors. A widget that is scrolled away is not,
  /// though Qt calls it visible.
  static bool isInView(const QWidget& widget) {
    QRect left = widget.rect();
    for (const QWidget* at = &widget; !at->isWindow() && !left.isEmpty(); at = at->parentWidget()) {
      left = left.translated(at->pos()).intersected(at->parentWidget()->rect());
    }
    return !left.isEmpty();
  }

  ViewWidget& widget_;
  QPointer<QWidget> window_;
  Told ideal_, least_, fitted_;
  QPointer<FocusFrame> ring_;  ///< while it is visible
  bool sizeStale_ = false;
  bool settleQueued_ = false;
};

}  // namespace quorix::qt
