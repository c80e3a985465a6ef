#pragma once

#include "platform/hosting/ViewSession.h"

class QEvent;
class QObject;

namespace quorix::qt {

/// A view in a window of either toolkit. Main thread.
class QUORIX_EXPORT HostedView : public hosting::ViewSession {
 public:
  using ViewSession::handle;
  /// Handles an event of the pointer, or a key that acts. False for other events. The action may
  /// delete the surface: do not touch it afterwards.
  bool handle(QEvent& event);

 protected:
  /// `self` is the item or widget, `chosen` the host's settings for it.
  HostedView(QObject& self, const hosting::HostSettings& chosen);

 private:
  bool allowsMotion() const override;
  void focusMoved(bool later) override;
  void sceneChanged() override;
  bool isRead() const override;

  QObject& self_;
  const hosting::HostSettings& chosen_;
};

}  // namespace quorix::qt
