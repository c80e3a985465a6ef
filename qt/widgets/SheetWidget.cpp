#include "qt/widgets/SheetWidget.h"

#include <QApplication>
#include <QHoverEvent>
#include <QPainter>
#include <QPointer>
#include <memory>
#include <utility>
#include <vector>

#include "qt/Conversions.h"
#include "qt/HostedSheet.h"
#include "qt/HostedWindow.h"
#include "qt/Picture.h"
#include "qt/widgets/WidgetAccessibleSurface.h"

namespace quorix::qt {

// Qt fills plain `QWidget`s from a host's style sheet, but not classes with a meta-object of their
// own.

/// Takes taps over the pages of a sheet. It is as large as the sheet, but its mask holds only the
/// areas where something acts. Passes its events to the sheet.
class SheetWidgetFront : public QWidget {
  Q_OBJECT

 public:
  SheetWidgetFront(QWidget& parent, HostedSheet& sheet) : QWidget(&parent), sheet_(sheet) {
    setAttribute(Qt::WA_AcceptTouchEvents);
    setFocusPolicy(Qt::NoFocus);
    setCursor(Qt::PointingHandCursor);
  }

  /// Takes its mask from the sheet's whole display list.
  void follow(const render::Scene& scene) {
    QRegion acting;
    for (std::size_t i = 0; i < scene.hitAreas.size(); ++i) {
      QRegion area = toRect(scene.hitAreas[i].frame).toAlignedRect();
      for (const render::Item& item : scene.items) {
        const auto* embed = std::get_if<render::EmbedItem>(&item);
        if (embed && i < embed->hitAreasBelow) area -= toRect(embed->room()).toAlignedRect();
      }
      acting += area;
    }
    setGeometry(parentWidget()->rect());
    // Qt reads an empty mask as none.
    setVisible(!acting.isEmpty());
    if (!acting.isEmpty() && acting != mask()) setMask(acting);
  }

 protected:
  bool event(QEvent* event) override {
    return (isEnabled() && sheet_.handle(*event)) || QWidget::event(event);
  }

 private:
  HostedSheet& sheet_;
};

class PictureWidget final : public QWidget, public hosting::ScenePicture {
  Q_OBJECT

 public:
  explicit PictureWidget(QWidget& parent) : QWidget(&parent) {
    setAttribute(Qt::WA_TransparentForMouseEvents);
    QWidget::show();
  }
  void show(const render::Scene& scene, double scale) override {
    picture_ = paintPicture(scene, scale, {0, 0, 0, 0});
  }
  void moveTo(layout::Point corner) override {
    setGeometry(QRectF(toPoint(corner), picture_.deviceIndependentSize()).toAlignedRect());
    offset_ = toPoint(corner) - pos();
  }

 protected:
  void paintEvent(QPaintEvent*) override { QPainter(this).drawImage(offset_, picture_); }

 private:
  QImage picture_;
  QPointF offset_;
};

/// A child of the window; deletes itself after it closed.
class SheetWidget final : public QWidget, public HostedSheet, public WidgetAccessibleSurface {
  Q_OBJECT

 public:
  SheetWidget(QWidget& window, hosting::WindowSession& session)
      : QWidget(&window),
        HostedSheet(static_cast<QObject&>(*this), session, QStringLiteral("QuorixWebWidgets")),
        WidgetAccessibleSurface(static_cast<QWidget&>(*this), *this) {
    setAttribute(Qt::WA_AcceptTouchEvents);
    setAttribute(Qt::WA_Hover);
    setFocusPolicy(Qt::StrongFocus);
    setCursor(Qt::ArrowCursor);  // instead of the window's
    hide();                      // until `comeUp`
    window.installEventFilter(this);
    connect(qApp, &QApplication::focusChanged, this,
            [this](QWidget*, QWidget* now) { holdFocus(now); });
    setGeometry(window.rect());
    followSize();
  }

  ~SheetWidget() override { dropChildren(); }

 protected:
  // None of the events reaches what is below the sheet.
  bool event(QEvent* event) override {
    switch (event->type()) {
      case QEvent::HoverEnter:
      case QEvent::HoverMove:
        setCursor(cursorAt(static_cast<QHoverEvent*>(event)->position()));
        return true;
      case QEvent::HoverLeave:
      case QEvent::ContextMenu:
      case QEvent::ToolTip:
      case QEvent::WhatsThis:
        event->accept();
        return true;
      case QEvent::ScreenChangeInternal:
        followScale();
        break;
      default:
        break;
    }
    return (isEnabled() && handle(*event)) || QWidget::event(event);
  }

  bool eventFilter(QObject* watched, QEvent* event) override {
    if (watched == parentWidget() && !isClosed()) {
      if (event->type() == QEvent::Resize) setGeometry(parentWidget()->rect());
      if (event->type() == QEvent::ChildAdded && isTopmost()) raiseAll();
    }
    return QWidget::eventFilter(watched, event);
  }

  void resizeEvent(QResizeEvent*) override { followSize(); }

  void paintEvent(QPaintEvent*) override {
    if (!isOpen()) return;
    // Qt tells a widget late, and not on every platform, that its window moved to another screen.
    if (scale() != settings().environment.scale) followScale();
    QPainter painter(this);
    const hosting::SheetPictures::Ground& ground = pictures().ground();
    painter.fillRect(rect(), toQColor(ground.shade));
    painter.fillRect(toRect(ground.below), toQColor(ground.color));
    later([this] { wasShown(); });
  }

  bool focusNextPrevChild(bool next) override {
    if (isClosed()) return QWidget::focusNextPrevChild(next);
    if (!hasPageFocus()) {
      walk(next);
    } else if (window()->focusWidget()->isVisible()) {
      leavePages(next);
    } else {
      takeFocusFromPages();  // not the user's key: Qt hides a page whose process ended
    }
    return true;
  }

 private:
  double scale() const override { return devicePixelRatioF(); }
  void followSize() { windowResized({double(width()), double(height())}); }

  void needsFrame() override { prepareFrameLater(); }
  void prepareFrame() override {
    if (!followFrame()) return;
    if (front_) front_->follow(presenter().scene());
    update();
  }

  std::unique_ptr<hosting::ScenePicture> newPicture(int) override {
    return std::make_unique<PictureWidget>(*this);
  }

  void comeUp() override {
    show();
    raise();
  }

  /// Raises the window's sheets, in their order, above widgets that were added later.
  void raiseAll() {
    const auto direct = Qt::FindDirectChildrenOnly;
    for (auto* sheet : parentWidget()->findChildren<SheetWidget*>(QString(), direct)) {
      if (sheet->isOpen()) sheet->raise();
    }
  }

  // Focus.

  FocusReturn focusReturn() override {
    return [this, before = QPointer(window()->focusWidget())] {
      const bool there =
          before && before->window() == window() && before->isVisible() && before->isEnabled();
      if (there) before->setFocus(Qt::PopupFocusReason);
      return there;
    };
  }

  void takeFocus() override { setFocus(Qt::PopupFocusReason); }
  bool hasFocus() const override { return QWidget::hasFocus(); }
  bool holdsFocus() const override { return window()->focusWidget() == this || hasPageFocus(); }
  void dropFocus() override { window()->focusWidget()->clearFocus(); }

  void holdFocus(QWidget* now) {
    if (now && hasPageFocus()) pageTookFocus();
    // A shortcut of the host may have moved the focus below the sheet.
    const bool below = now && now != this && now->window() == window() && !isAncestorOf(now);
    if (below) focusWentBelow();
  }

  // Pages.

  std::unique_ptr<hosting::PageEngine> openPage(const render::EmbedItem& embed,
                                                hosting::PageEngine::Client& client) override {
    activeBefore_ = isActiveWindow() ? window()->internalWinId() : 0;
    auto page = HostedSheet::openPage(embed, client);
    if (!front_) front_ = new SheetWidgetFront(*this, *this);
    front_->raise();
    return page;
  }

  void placePage(hosting::PageEngine& engine, const hosting::PagePlace& place, int index) override {
    auto& page = static_cast<QWidget&>(viewOf(engine));
    page.setGeometry(toRect(place.room).toAlignedRect());
    page.show();
    // For the first widget that is drawn by other means than the rest, Qt makes the native window
    // anew, which is then not active.
    const WId before = std::exchange(activeBefore_, 0);
    if (before && window()->internalWinId() != before) activateWindow();
    page.stackUnder(&static_cast<PictureWidget&>(pictures().picture(index + 1)));
  }

  void focusPage(hosting::PageEngine& engine, bool forward) override {
    static_cast<QWidget&>(viewOf(engine))
        .setFocus(forward ? Qt::TabFocusReason : Qt::BacktabFocusReason);
  }

  bool hasPageFocus() const {
    const QWidget* focused = window()->focusWidget();
    return focused && focused != this && isAncestorOf(focused);
  }

  void takeFocusFromPages() override {
    // If a page's process ended, the window may have no focused widget.
    if (hasPageFocus() || !window()->focusWidget()) setFocus(Qt::OtherFocusReason);
  }

  // Accessibility.

  std::vector<QObject*> accessibleViews() const override { return pageViews(); }
  bool isShown() const override { return !isClosed() && WidgetAccessibleSurface::isShown(); }
  bool isDialog() const override { return true; }
  void sceneChanged() override { tellScene(); }
  void focusMoved(bool later) override { tellFocus(later); }
  void coverChanged() override { tellCover(); }

  SheetWidgetFront* front_ = nullptr;  ///< made with the first page
  WId activeBefore_ = 0;  ///< the native window in which a page opens, if it was active
};

hosting::WindowSession& sessionOf(QWidget& window) {
  const auto newSheet = [&window](HostedWindow & session, auto*) -> auto& {
    return *new SheetWidget(window, session);
  };
  return HostedWindow::of(window, {[&window] { return window.windowHandle(); }, newSheet});
}

}  // namespace quorix::qt

#include "SheetWidget.moc"
