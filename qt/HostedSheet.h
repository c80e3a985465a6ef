#pragma once

#include <QAbstractAnimation>
#include <QString>
#include <memory>
#include <vector>

#include "platform/foundation/Export.h"
#include "platform/hosting/SheetPictures.h"
#include "platform/hosting/SheetSession.h"

class QEvent;
class QObject;

namespace quorix::qt {

/// A sheet over a window of either toolkit: events and pages. Main thread.
class QUORIX_EXPORT HostedSheet : public hosting::SheetSession {
 public:
  using SheetSession::handle;
  /// Handles an event of the pointer or the keyboard. False for other events.
  bool handle(QEvent& event);
  Qt::CursorShape cursorAt(QPointF point);

 protected:
  /// `self` is the derived object, `webComponent` the name of its toolkit's web component.
  HostedSheet(QObject& self, hosting::WindowSession& window, QString webComponent);

  /// The views of the pages on show, from the bottom up.
  std::vector<QObject*> pageViews() const;
  /// The view of a page on show.
  static QObject& viewOf(const hosting::PageEngine& page);
  std::unique_ptr<hosting::PageEngine> openPage(const render::EmbedItem& embed,
                                                hosting::PageEngine::Client& client) override;

 private:
  void startClock() override { clock_->start(); }
  void stopClock() override { clock_->stop(); }
  void vanish() override;
  bool canShowPages() const override;
  bool opensPagesAtOnce() const override;

  QObject& self_;
  QString webComponent_;
  std::unique_ptr<QAbstractAnimation> clock_;
};

}  // namespace quorix::qt
