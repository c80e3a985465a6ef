#pragma once

#include <QWidget>
#include <vector>

#include "qt/SheetSurface.h"
#include "qt/widgets/WidgetAccessibleSurface.h"

namespace quorix::qt {

class SheetWidgetFront;

/// A sheet over a window of widgets: as large as the window and above everything in it. A child of
/// the window; deletes itself after it closed. Main thread.
class SheetWidget : public QWidget, public SheetSurface, public WidgetAccessibleSurface {
  Q_OBJECT

 public:
  SheetWidget(QWidget& window, hosting::WindowSession& session);

 protected:
  bool event(QEvent* event) override;
  bool eventFilter(QObject* watched, QEvent* event) override;
  void paintEvent(QPaintEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;
  bool focusNextPrevChild(bool next) override;

 private:
  double scale() const override { return devicePixelRatioF(); }
  void needsFrame() override;
  void comeUp() override;
  FocusReturn focusReturn() override;
  void takeFocus() override { setFocus(Qt::PopupFocusReason); }
  bool hasFocus() const override { return QWidget::hasFocus(); }
  bool holdsFocus() const override { return window()->focusWidget() == this || hasPageFocus(); }
  void dropFocus() override { window()->focusWidget()->clearFocus(); }

  std::unique_ptr<SheetPicture> newPicture(int index) override;
  std::unique_ptr<hosting::PageEngine> openPage(const render::EmbedItem& embed,
                                                hosting::PageEngine::Client& client) override;
  void placePage(hosting::PageEngine& engine, const hosting::PagePlace& place, int index) override;
  void focusPage(hosting::PageEngine& engine, bool forward) override;
  void takeFocusFromPages() override;
  bool hasPageFocus() const;

  std::vector<QObject*> accessibleViews() const override { return pageViews(); }
  bool isShown() const override { return !isClosed() && WidgetAccessibleSurface::isShown(); }
  bool isDialog() const override { return true; }

  void followSize();
  void raiseAll();
  void settle();
  void holdFocus(QWidget* now);

  SheetWidgetFront* front_ = nullptr;  ///< made with the first page
  WId activeBefore_ = 0;  ///< the native window in which a page opens, if it was active
  bool settleQueued_ = false;
};

}  // namespace quorix::qt
