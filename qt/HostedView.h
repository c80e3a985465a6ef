#pragma once

#include "platform/hosting/ViewSession.h"

class QEvent;
class QObject;

namespace quorix::qt {

/// A view in a window of either toolkit. Main thread.
class QUORIX_EXPORT HostedView : public hosting::ViewSession {
 public:
  using ViewSession::handle;
  /// Takes an event of the pointer or a key that acts: false when it is another. What a key does
  /// may delete the surface: touch nothing of it afterwards.
  bool handle(QEvent& event);

 protected:
  /// `self` is the item or widget, `chosen` what the host chose for it.
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
