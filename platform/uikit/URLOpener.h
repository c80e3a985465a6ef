#pragma once

#include <memory>

#include "platform/foundation/Export.h"
#include "platform/foundation/URL.h"

namespace quorix::uikit {

/// The port to the system's way of opening an address outside the app: the browser for a page, the
/// telephone for a number. The engine installs one; a host or a test may install another after it.
/// Main thread.
///
///     URLOpener::install(std::make_shared<MyOpener>());
///     const bool handedOver = URLOpener::openOutside(url);
class QUORIX_EXPORT URLOpener {
 public:
  virtual ~URLOpener() = default;
  /// Opens `url`, which `opensOutside` allows. Whether anything shows is up to the system.
  virtual void open(const foundation::URL& url) = 0;

  /// Replaces the opener, by none when null; returns the one before, for a test to put back.
  static std::shared_ptr<URLOpener> install(std::shared_ptr<URLOpener> opener);
  /// Hands `url` to the opener. False, and nothing happens, where `opensOutside` refuses it or no
  /// opener is installed.
  static bool openOutside(const foundation::URL& url);
};

}  // namespace quorix::uikit
