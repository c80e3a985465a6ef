#pragma once

#include <QColor>
#include <QImage>
#include <QPointer>
#include <QQuickItem>
#include <memory>

#include "platform/hosting/SheetPresenter.h"
#include "platform/hosting/VelocityTracker.h"
#include "qt/EnvironmentSource.h"
#include "qt/FingerTracker.h"
#include "qt/FrameClock.h"
#include "qt/quick/QuickAccessibleSurface.h"

namespace quorix::qt {

/// A sheet over a Qt Quick window: on top of everything and as large as the window. Belongs to the
/// window's content, and deletes itself when it has closed. Main thread.
class SheetItem : public QQuickItem,
                  private hosting::SheetPresenter::Client,
                  private QuickAccessibleSurface {
  Q_OBJECT

 public:
  explicit SheetItem(QQuickWindow& window);
  ~SheetItem() override;

  /// The sheet of `window` that takes the input, or null.
  static const SheetItem* topmost(const QQuickWindow& window);

  void setSettings(const EnvironmentSource& settings);
  void present(const swiftui::Presentation& presentation);
  /// The owner took the sheet back.
  void retract() { presenter_.retract(); }
  /// The owner is gone: closes without motion.
  void abandon();
  bool isClosed() const { return closed_; }

 protected:
  bool event(QEvent* event) override;
  void itemChange(ItemChange change, const ItemChangeData& data) override;
  void geometryChange(const QRectF& now, const QRectF& before) override;
  void updatePolish() override;
  QSGNode* updatePaintNode(QSGNode* old, UpdatePaintNodeData* data) override;

  void mousePressEvent(QMouseEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void mouseDoubleClickEvent(QMouseEvent* event) override { mousePressEvent(event); }
  void mouseUngrabEvent() override { presenter_.pointerCancelled(); }
  void touchEvent(QTouchEvent* event) override;
  void touchUngrabEvent() override;
  void wheelEvent(QWheelEvent* event) override;
  void hoverMoveEvent(QHoverEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void keyReleaseEvent(QKeyEvent* event) override;

 private:
  void sheetNeedsDisplay() override { polish(); }
  void sheetDidClose() override;

  const std::vector<render::AccessibilityElement>& accessibilityElements() override;
  void performAccessibilityAction(int index) override { presenter_.activate(index); }
  std::optional<layout::Rect> focusedFrame() const override;
  bool isShown() const override { return !closed_ && QuickAccessibleSurface::isShown(); }
  bool isDialog() const override { return true; }

  double scale() const;
  // `at` is the event's time in milliseconds.
  void pressed(QPointF point, quint64 at);
  void moved(QPointF point, quint64 at);
  void released(QPointF point, quint64 at);
  void followMotion();
  void updateRing();
  void giveFocusBack();
  void leave();

  hosting::SheetPresenter presenter_;
  EnvironmentSource settings_;
  FingerTracker finger_;
  hosting::VelocityTracker velocity_;
  FrameClock clock_;
  QPointer<QQuickItem> focusBefore_;

  // What the scene graph shows next; pictures are here only on their way to it.
  QRectF panel_;
  QImage panelPicture_;
  double pictureHeight_ = 0;
  QColor shade_;
  QColor panelColor_;
  QImage ringPicture_;
  std::optional<layout::Rect> ring_;

  std::optional<unsigned> paintedRevision_;
  double paintedScale_ = 0;
  bool presented_ = false;
  bool ringWanted_ = false;
  bool closed_ = false;
};

}  // namespace quorix::qt
