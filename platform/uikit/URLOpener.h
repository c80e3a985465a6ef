#pragma once

#include <memory>

#include "platform/foundation/Export.h"
#include "platform/foundation/URL.h"

namespace quorix::uikit {

/// The port to the system's handler of addresses: the browser for a page, the telephone for a
/// number. The engine installs one; a host or a test may install another after it. Main thread.
///
///     struct Browser final : URLOpener {
///       void open(const foundation::URL& url) override { puts(url.absoluteString().c_str()); }
///     };
///     URLOpener::install(std::make_shared<Browser>());
///     URLOpener::openOutside(*foundation::URL::parse("https://shop.example/"));
class QUORIX_EXPORT URLOpener {
 public:
  virtual ~URLOpener() = default;
  /// Opens `url`, which `openOutside` has checked. Whether a window shows is up to the system.
  virtual void open(const foundation::URL& url) = 0;

  /// Replaces the opener; null removes it. Returns the previous one, so that a test can restore it.
  static std::shared_ptr<URLOpener> install(std::shared_ptr<URLOpener> opener);
  /// Hands `url` to the opener. Returns false when the address is refused or no opener is
  /// installed.
  ///
  /// A page can ask for this without a tap, so it must not reach local files, scripts, pages of a
  /// browser's or the system's own, or disks and shells of other machines: those schemes are
  /// refused. So are a web address without a host, a mail with items other than recipients, subject
  /// and text, and a telephone number with characters that set up a telephone. Any other address
  /// passes, links into other apps included ("whatsapp:").
  static bool openOutside(const foundation::URL& url);
};

}  // namespace quorix::uikit
