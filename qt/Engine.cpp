#include "qt/Engine.h"

#include <QDesktopServices>
#include <QGuiApplication>
#include <memory>
#include <mutex>

#include "platform/foundation/URLSession.h"
#include "platform/uikit/URLOpener.h"
#include "qt/Conversions.h"
#include "qt/Desktop.h"
#include "qt/QtMainQueue.h"
#include "qt/network/QtURLTransport.h"
#include "qt/text/QtFonts.h"

namespace quorix::qt {
namespace {

/// Opens addresses by Qt: with the handler that the host has set for the scheme
/// (`QDesktopServices::setUrlHandler`), or else with that of the desktop or the phone. Does nothing
/// without a `QGuiApplication`. Main thread.
class QtURLOpener final : public uikit::URLOpener {
 public:
  void open(const foundation::URL& url) override {
    if (!qobject_cast<QGuiApplication*>(QCoreApplication::instance())) return;
    const QUrl address = toQUrl(url);
    if (address.isValid()) QDesktopServices::openUrl(address);
  }
};

}  // namespace

void installEngine() {
  static std::once_flag once;
  std::call_once(once, [] {
    QtMainQueue::install();
    Desktop::follow();  // early: the settings service takes a moment to answer
    QtFonts::installSystemLookup();
    foundation::URLSession::shared().install(std::make_shared<QtURLTransport>());
    uikit::URLOpener::install(std::make_shared<QtURLOpener>());
  });
}

}  // namespace quorix::qt
