#pragma once

#include <memory>

#include "platform/foundation/Export.h"
#include "platform/foundation/URL.h"

namespace quorix::uikit {

/// The port to the system's handler of addresses: the browser for a page, the phone for a number.
/// The engine installs one; a host or a test may replace it. Main thread.
///
///     struct Browser final : URLOpener {
///       void open(const foundation::URL& url) override { puts(url.absoluteString().c_str()); }
///     };
///     URLOpener::install(std::make_shared<Browser>());
///     URLOpener::openOutside(*foundation::URL::parse("https://shop.example/"));
class QUORIX_EXPORT URLOpener {
 public:
  virtual ~URLOpener() = default;
  /// Opens `url`, which `openOutside` has checked. The system decides whether a window appears.
  virtual void open(const foundation::URL& url) = 0;

  /// Replaces the opener; null removes it. Returns the previous one, so that a test can restore it.
  static std::shared_ptr<URLOpener> install(std::shared_ptr<URLOpener> opener);
  /// Passes `url` to the opener. Returns false if the address is refused or no opener is installed.
  ///
  /// A page can cause this without a tap. So these addresses are refused: schemes for local files,
  /// scripts, pages of a browser or of the system, and disks and shells of other machines; a web
  /// address without a host; a mail with items other than recipients, subject and text; a phone
  /// number with characters that change the phone's settings. All other addresses are opened, links
  /// into other apps included ("whatsapp:").
  static bool openOutside(const foundation::URL& url);
};

}  // namespace quorix::uikit
