#pragma once

#include <QPointer>
#include <QSize>
#include <optional>
#include <utility>

#include "qt/HostedView.h"
#include "qt/widgets/ViewWidget.h"
#include "qt/widgets/WidgetAccessibleSurface.h"

class QPainter;

namespace quorix::qt {

class FocusFrame;

/// The private part of a view widget. Main thread.
class WidgetSurface final : public HostedView, private WidgetAccessibleSurface {
 public:
  explicit WidgetSurface(ViewWidget& widget);
  ~WidgetSurface() override { dropRing(); }

  // For layouts.
  QSize idealSize();
  QSize minimumSize();
  int heightFor(int width);

  void contentChanged() override { settle(); }
  /// The widget was shown, or moved to another window.
  void placeChanged();
  void onScreenChanged();
  void windowStateChanged() override { onScreenChanged(); }
  void sizeChanged();
  void paint(QPainter& painter);

 private:
  void viewNeedsDisplay() override;
  swiftui::Environment environment() const override;
  layout::Size size() const override { return {double(widget_.width()), double(widget_.height())}; }
  double scale() const { return widget_.devicePixelRatioF(); }
  bool hasFocus() const override { return widget_.hasFocus(); }
  bool acceptsFocus() const override { return widget_.focusPolicy() != Qt::NoFocus; }
  void setAcceptsFocus(bool accepts) override {
    widget_.setFocusPolicy(accepts ? Qt::TabFocus : Qt::NoFocus);
  }
  void takeFocusByPress() override { widget_.setFocus(Qt::MouseFocusReason); }
  void giveFocusOn() override;
  void needsFrame() override;
  hosting::WindowSession* window() override;
  void activated() override { emit widget_.activated(); }
  void sheetOpened() override { emit widget_.sheetOpened(); }
  void sheetClosed(hosting::SheetCloseReason reason) override {
    emit widget_.sheetClosed(static_cast<SheetCloseReason>(reason));
  }

  void desktopChanged() override { settingsChanged(); }

  /// An answer that layouts got. They lay out again only when one changes.
  using Told = std::optional<std::pair<layout::ProposedSize, QSize>>;

  bool isOnScreen() const { return widget_.isVisible() && !widget_.window()->isMinimized(); }
  void settle();
  QSize tell(Told& told, layout::ProposedSize proposal);
  void updateRing();
  void dropRing();
  QSize sizeFor(layout::ProposedSize proposal);

  ViewWidget& widget_;
  QPointer<QWidget> window_;
  Told ideal_, least_, fitted_;
  QPointer<FocusFrame> ring_;  ///< while it is visible
  bool sizeStale_ = false;
  bool settleQueued_ = false;
};

}  // namespace quorix::qt
