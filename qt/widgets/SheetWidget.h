#pragma once

#include <QImage>
#include <QPointer>
#include <QWidget>
#include <optional>
#include <vector>

#include "platform/foundation/Export.h"
#include "platform/hosting/SceneLayers.h"
#include "qt/SheetSurface.h"
#include "qt/widgets/PictureWidget.h"
#include "qt/widgets/SheetWidgetFront.h"
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
  QUORIX_EXPORT static const SheetWidget* topmost(const QWidget& window);

 protected:
  bool event(QEvent* event) override;
  bool eventFilter(QObject* watched, QEvent* event) override;
  void paintEvent(QPaintEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;
  bool focusNextPrevChild(bool next) override;

 private:
  friend class SheetWidgetFront;

  /// A picture of what lies above a page.
  struct Layer {
    PictureWidget* picture;
    QPointF origin;  ///< in the panel
  };

  double scale() const override { return devicePixelRatioF(); }
  void needsFrame() override;
  void takeFocusOver() override;
  void giveFocusBack() override;
  void vanish() override { hide(); }
  SheetSurface* makeSheetAbove() override { return new SheetWidget(*parentWidget()); }

  void placePage(QObject& view, const layout::Rect& frame, int index) override;
  void focusPage(QObject& view, bool forward) override;
  void takeFocusFromPages() override;
  bool hasPageFocus() const;

  const std::vector<render::AccessibilityElement>& accessibilityElements() override;
  std::vector<QObject*> accessibleViews() const override { return pageViews(); }
  void performAccessibilityAction(int index) override { presenter().activate(index); }
  bool focusElement(int index) override { return SheetSurface::focusElement(index); }
  std::optional<layout::Rect> focusedFrame() const override;
  bool isShown() const override { return !isClosed() && WidgetAccessibleSurface::isShown(); }
  bool isDialog() const override { return true; }

  void windowResized();
  void raiseAll();
  void settle();
  void updatePanel();
  void updateLayers();
  void updateFront();
  void updateRing();
  void holdFocus(QWidget* now);
  void pointAt(QPointF point);

  QPointer<QWidget> focusBefore_;
  QImage picture_;  ///< of the panel at rest, which motion only moves
  std::vector<Layer> layers_;
  QList<QWidget*> stack_;              ///< what lies over the painted panel, from the bottom up
  SheetWidgetFront* front_ = nullptr;  ///< made with the first page
  PictureWidget* ring_ = nullptr;
  std::optional<layout::Size> ringSize_;
  std::optional<unsigned> layersRevision_;
  std::optional<unsigned> paintedRevision_;
  bool settleQueued_ = false;
};

}  // namespace quorix::qt
