#pragma once

#include <QImage>
#include <QPointer>
#include <QWidget>
#include <optional>

#include "qt/SheetSurface.h"
#include "qt/widgets/WidgetAccessibleSurface.h"

namespace quorix::qt {

/// A sheet over a window of widgets: on top of everything in it and as large as the window. Belongs
/// to the window, and deletes itself when it has closed. Main thread.
class SheetWidget : public QWidget, public SheetSurface, private WidgetAccessibleSurface {
  Q_OBJECT

 public:
  explicit SheetWidget(QWidget& window);
  ~SheetWidget() override;

  /// The sheet of `window` that takes the input, or null.
  static const SheetWidget* topmost(const QWidget& window);

 protected:
  bool event(QEvent* event) override;
  bool eventFilter(QObject* watched, QEvent* event) override;
  void paintEvent(QPaintEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;
  bool focusNextPrevChild(bool next) override;

 private:
  double scale() const override { return devicePixelRatioF(); }
  void needsFrame() override;
  void takeFocusOver() override;
  void giveFocusBack() override;
  void vanish() override { hide(); }

  const std::vector<render::AccessibilityElement>& accessibilityElements() override;
  void performAccessibilityAction(int index) override { presenter().activate(index); }
  std::optional<layout::Rect> focusedFrame() const override;
  bool isShown() const override { return !isClosed() && WidgetAccessibleSurface::isShown(); }
  bool isDialog() const override { return true; }

  void windowResized();
  void settle();
  void holdFocus(QWidget* now);
  void pointAt(QPointF point);

  QPointer<QWidget> focusBefore_;
  QImage picture_;  ///< of the panel at rest, which motion only moves
  std::optional<unsigned> toldRevision_;
  std::optional<unsigned> paintedRevision_;
  bool settleQueued_ = false;
};

}  // namespace quorix::qt
