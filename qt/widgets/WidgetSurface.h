#pragma once

#include <QMetaObject>
#include <QPointer>
#include <QSize>
#include <optional>
#include <utility>

#include "qt/HostedView.h"
#include "qt/widgets/WidgetAccessibleSurface.h"

class QPainter;

namespace quorix::qt {

class FocusFrame;
class ViewWidget;

/// What a view widget keeps and does behind its public face. Main thread.
class WidgetSurface final : public HostedView, private WidgetAccessibleSurface {
 public:
  explicit WidgetSurface(ViewWidget& widget);
  ~WidgetSurface() override;

  // What layouts ask.
  QSize idealSize();
  QSize minimumSize();
  int heightFor(int width);

  void contentChanged() override;
  /// The widget was shown, or came into another window.
  void placeChanged();
  void onScreenChanged();
  void sizeChanged();
  void paint(QPainter& painter);

 private:
  void viewNeedsDisplay() override;
  swiftui::Environment environment() const override;
  bool allowsMotion() const override;
  layout::Size size() const override;
  double scale() const;
  bool hasFocus() const override;
  void takeFocusByPress() override;
  void giveFocusOn() override;
  void needsFrame() override;
  hosting::WindowSession* window() override;
  void activated() override;
  void sheetOpened() override;
  void sheetClosed(hosting::SheetCloseReason reason) override;

  hosting::Responder& responder() override { return *this; }

  /// What layouts were told; only when that no longer holds do they lay out anew.
  struct Told {
    std::optional<QSize> ideal;
    std::optional<QSize> minimum;
    std::optional<std::pair<int, int>> height;  ///< for a width
  };

  void settleSoon();
  void settle();
  bool toldHolds();
  void refreshScene();
  void updateRing();
  void dropRing();
  QSize sizeFor(layout::ProposedSize proposal);

  ViewWidget& widget_;
  QPointer<QWidget> window_;
  QMetaObject::Connection windowState_;
  Told told_;
  QPointer<FocusFrame> ring_;  ///< while it is to be seen
  bool onScreen_ = false;
  bool sizeStale_ = false;
  bool sceneStale_ = true;
  bool settleQueued_ = false;
};

}  // namespace quorix::qt
