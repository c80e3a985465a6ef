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
  /// Told of the seconds since the last tick; the clock stops when it answers false.
  explicit FrameClock(std::function<bool(double)> tick) : tick_(std::move(tick)) {}

  /// Runs from now on, if it does not yet.
  void start() {
    if (state() == Running) return;
    sinceTick_.start();
    QAbstractAnimation::start();
  }
  void stop() { QAbstractAnimation::stop(); }

 private:
  int duration() const override { return -1; }  // until it is stopped
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
  /// A picture of what lies above a page, and where it stands in the panel.
  struct Layer {
    QImage picture;
    QPointF origin;
  };

  using SheetSession::handle;
  /// Takes an event of the pointer or the keyboard: false when it is another.
  bool handle(QEvent& event);

 protected:
  /// `self` is the derived object, `webComponent` the name of its toolkit's.
  SheetSurface(QObject& self, hosting::WindowSession& window, QString webComponent);

  /// Paints the panel anew if it or the scale changed; empty otherwise. The first layer is the
  /// panel itself, to where only its color is left; each further one lies above a page.
  std::vector<Layer> paintLayers();
  /// The pictures were lost.
  void paintAgain();
  /// Where the focus ring stands, with its picture if that is another one than before.
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
  std::optional<layout::Size> ringSize_;  ///< of the latest picture
};

}  // namespace quorix::qt
