#pragma once

#include <QPainter>
#include <QPointer>
#include <optional>
#include <utility>

#include "qt/Desktop.h"
#include "qt/HostedView.h"
#include "qt/Picture.h"
#include "qt/widgets/FocusFrame.h"
#include "qt/widgets/SheetWidget.h"
#include "qt/widgets/ViewWidget.h"
#include "qt/widgets/WidgetAccessibleSurface.h"
#include "qt/widgets/WidgetWindowWatcher.h"

namespace quorix::qt {

/// The private part of a view widget. Main thread.
class WidgetSurface final : public HostedView<ViewWidget, WidgetAccessibleSurface> {
 public:
  explicit WidgetSurface(ViewWidget& widget) : HostedView(widget, widget.settings()) {}

  ~WidgetSurface() override { dropRing(); }

  // For layouts.
  QSize idealSize() { return tell(ideal_, {}); }

  /// The height at the least width is the answer of `heightFor`.
  QSize minimumSize() { return {tell(least_, {0, std::nullopt}).width(), idealSize().height()}; }

  int heightFor(int width) { return tell(fitted_, {width, std::nullopt}).height(); }

  void contentChanged() override { prepareFrame(); }

  /// The widget was shown, or moved to another window.
  void placeChanged() {
    QWidget* window = shown_.window();
    const bool moved = window != window_;
    if (moved) {
      leaveWindow();
      WidgetWindowWatcher::watch(*window);
      window_ = window;
    }
    onScreenChanged();  // before a size is needed, so that the view is evaluated once
    settingsChanged();
    if (moved) enterWindow();
  }

  void sizeChanged() {
    resized();
    prepareFrame();
  }

  void paint(QPainter& painter) {
    // Qt tells a widget late, and not on every platform, that its window moved to another screen.
    if (scale() != host().environment().scale) settingsChanged();
    paintAsPicture(painter, host().scene(size()));
  }

 private:
  swiftui::Environment environment() const override {
    swiftui::Environment around = Desktop::environment(scale());
    around.appearance = Desktop::appearanceOf(shown_.palette());
    around.direction = Desktop::directionOf(shown_.layoutDirection());
    return shown_.settings().over(around);
  }

  double scale() const { return shown_.devicePixelRatioF(); }
  bool hasFocus() const override { return shown_.hasFocus(); }
  bool acceptsFocus() const override { return shown_.focusPolicy() != Qt::NoFocus; }
  void setAcceptsFocus(bool accepts) override {
    shown_.setFocusPolicy(accepts ? Qt::TabFocus : Qt::NoFocus);
  }
  void takeFocusByPress() override { shown_.setFocus(Qt::MouseFocusReason); }

  void giveFocusOn() override {
    if (!shown_.focusNextPrevChild(true)) shown_.clearFocus();
  }

  void needsFrame() override { prepareFrameLater(); }

  hosting::WindowSession* window() override { return &sessionOf(*shown_.window()); }

  /// An answer that layouts got. They lay out again only when one changes.
  using Told = std::optional<std::pair<layout::ProposedSize, QSize>>;

  bool isOnScreen() const override { return isShown() && !shown_.window()->isMinimized(); }

  void prepareFrame() override {
    const auto holds = [this](const Told& told) {
      return !told || sizeFor(told->first) == told->second;
    };
    if (takeSizeStale() && !(holds(ideal_) && holds(least_) && holds(fitted_))) {
      ideal_ = least_ = fitted_ = std::nullopt;
      shown_.updateGeometry();
    }
    if (isOnScreen() && refreshScene()) shown_.update();
    updateRing();
    // isVisible is also true for a widget that is scrolled out of sight.
    rest(isOnScreen() && !shown_.visibleRegion().isEmpty());
  }

  QSize tell(Told& told, layout::ProposedSize proposal) {
    const QSize answer = sizeFor(proposal);
    told = {{proposal, answer}};
    return answer;
  }

  void updateRing() {
    const auto around = ringFrame();
    if (!around) return dropRing();
    if (!ring_) ring_ = new FocusFrame(shown_);
    ring_->goAround(*around, host().environment().appearance);
  }

  void dropRing() {
    if (!ring_) return;
    ring_->setWidget(nullptr);
    ring_->deleteLater();  // its parent may be iterating over its children
    ring_ = nullptr;
  }

  QSize sizeFor(layout::ProposedSize proposal) {
    const layout::Size size = layout::PixelGrid(1).ceil(host().sizeThatFits(proposal));
    constexpr QSizeF most(QWIDGETSIZE_MAX, QWIDGETSIZE_MAX);
    return QSizeF(size.width, size.height).boundedTo(most).toSize();
  }

  QPointer<QWidget> window_;
  Told ideal_, least_, fitted_;
  QPointer<FocusFrame> ring_;  ///< while it is visible
};

}  // namespace quorix::qt
