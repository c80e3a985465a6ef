#pragma once

#include <QAbstractAnimation>
#include <QElapsedTimer>
#include <QImage>
#include <QPointF>
#include <QString>
#include <functional>
#include <optional>
#include <vector>

#include "platform/foundation/Export.h"
#include "platform/hosting/SheetSession.h"

class QEvent;
class QObject;

namespace quorix::qt {

/// Ticks once for each frame while it runs, in step with the window that is drawn. Main thread.
class QUORIX_EXPORT FrameClock : private QAbstractAnimation {
 public:
  /// `tick` gets the seconds since the last tick. The clock stops when it returns false.
  explicit FrameClock(std::function<bool(double)> tick) : tick_(std::move(tick)) {}

  /// Has no effect while it runs.
  void start() {
    if (state() == Running) return;
    sinceTick_.start();
    QAbstractAnimation::start();
  }
  void stop() { QAbstractAnimation::stop(); }

 private:
  int duration() const override { return -1; }  // without an end
  void updateCurrentTime(int) override {
    if (state() != Running) return;
    const double seconds = static_cast<double>(sinceTick_.nsecsElapsed()) * 1e-9;
    sinceTick_.start();
    if (!tick_(seconds)) stop();
  }

  std::function<bool(double)> tick_;
  QElapsedTimer sinceTick_;
};

/// A sheet over a window of either toolkit. Main thread.
class QUORIX_EXPORT SheetSurface : public hosting::SheetSession {
 public:
  /// A picture of the panel, or of what lies above a page, and its place in the panel.
  struct Layer {
    QImage picture;
    QPointF origin;
  };

  using SheetSession::handle;
  /// Handles an event of the pointer or the keyboard. False for other events.
  bool handle(QEvent& event);

 protected:
  /// `self` is the derived object, `webComponent` the name of its toolkit's web component.
  SheetSurface(QObject& self, hosting::WindowSession& window, QString webComponent);

  /// Paints the panel again if it or the scale changed; otherwise returns nothing. The first layer
  /// is the panel itself, down to where only its color is left. Each further one lies above a page.
  std::vector<Layer> paintLayers();
  /// The pictures were lost: paints them again.
  void paintAgain();
  /// The place of the focus ring, with its picture if that changed.
  std::optional<Layer> ring();

  std::unique_ptr<hosting::PageEngine> openPage(const render::EmbedItem& embed,
                                                hosting::PageEngine::Client& client) override;

  /// The view of a page on show.
  static QObject* viewOf(const hosting::PageEngine& page);
  /// The views of the pages on show, from the bottom up.
  std::vector<QObject*> pageViews() const;

 private:
  void startClock() override { clock_.start(); }
  void stopClock() override { clock_.stop(); }
  void focusMoved(bool later) override;
  void coverChanged() override;
  bool canShowPages() const override;
  bool opensPagesAtOnce() const override;

  QObject& self_;
  QString webComponent_;
  FrameClock clock_;
  std::optional<unsigned> paintedRevision_;
  double paintedScale_ = 0;
  std::optional<layout::Size> ringSize_;  ///< in the latest picture
};

}  // namespace quorix::qt
