#pragma once

#include <QImage>
#include <QPointer>
#include <QWidget>
#include <vector>

#include "platform/foundation/Export.h"
#include "qt/SheetSurface.h"
#include "qt/widgets/SheetWidgetLayers.h"
#include "qt/widgets/WidgetAccessibleSurface.h"

namespace quorix::qt {

/// A sheet over a window of widgets: as large as the window and above everything in it. A child of
/// the window; deletes itself after it closed. Main thread.
class SheetWidget : public QWidget, public SheetSurface, public WidgetAccessibleSurface {
  Q_OBJECT

 public:
  SheetWidget(QWidget& window, hosting::WindowSession& session);
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
  /// Shows a layer above a page.
  struct ShownLayer {
    PictureWidget* picture;
    QPointF origin;  ///< in the panel
  };

  double scale() const override { return devicePixelRatioF(); }
  void needsFrame() override;
  void comeUp() override;
  FocusReturn focusReturn() override;
  void takeFocus() override { setFocus(Qt::PopupFocusReason); }
  bool hasFocus() const override { return QWidget::hasFocus(); }
  bool holdsFocus() const override { return window()->focusWidget() == this || hasPageFocus(); }
  void dropFocus() override { window()->focusWidget()->clearFocus(); }
  void vanish() override;

  std::unique_ptr<hosting::PageEngine> openPage(const render::EmbedItem& embed,
                                                hosting::PageEngine::Client& client) override;
  void placePage(hosting::PageEngine& engine, const hosting::PagePlace& place, int index) override;
  void focusPage(hosting::PageEngine& engine, bool forward) override;
  void takeFocusFromPages() override;
  bool hasPageFocus() const;

  hosting::Responder& responder() override { return *this; }
  std::vector<QObject*> accessibleViews() const override { return pageViews(); }
  bool isShown() const override { return !isClosed() && WidgetAccessibleSurface::isShown(); }
  bool isDialog() const override { return true; }

  void followSize();
  void raiseAll();
  void settle();
  void updatePanel();
  void updateLayers();
  void updateFront();
  void updateRing();
  void holdFocus(QWidget* now);
  void pointAt(QPointF point);

  QImage picture_;                ///< of the panel at rest; motion moves it
  std::vector<Layer> repainted_;  ///< until `layers_` shows them
  std::vector<ShownLayer> layers_;
  QList<QWidget*> stack_;              ///< the widgets over the painted panel, from the bottom up
  SheetWidgetFront* front_ = nullptr;  ///< made with the first page
  PictureWidget* ring_ = nullptr;
  WId activeBefore_ = 0;  ///< the native window in which a page opens, if it was active
  bool settleQueued_ = false;
};

}  // namespace quorix::qt
