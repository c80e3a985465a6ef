#pragma once

#include "platform/uikit/URLOpener.h"

namespace quorix::qt {

/// Opens addresses as Qt does: with the handler that the host has set for the scheme
/// (`QDesktopServices::setUrlHandler`), else with the desktop's or the phone's. Does nothing
/// without a `QGuiApplication`. Main thread.
class QtURLOpener final : public uikit::URLOpener {
 public:
  void open(const foundation::URL& url) override;
};

}  // namespace quorix::qt
