#include "qt/Engine.h"

#include <memory>
#include <mutex>

#include "platform/foundation/URLSession.h"
#include "platform/uikit/URLOpener.h"
#include "qt/Desktop.h"
#include "qt/QtFonts.h"
#include "qt/QtMainQueue.h"
#include "qt/QtURLOpener.h"
#include "qt/QtURLTransport.h"

namespace quorix::qt {

void installEngine() {
  static std::once_flag once;
  std::call_once(once, [] {
    QtMainQueue::install();
    Desktop::instance();  // its settings service needs a moment to answer
    QtFonts::installSystemLookup();
    foundation::URLSession::shared().install(std::make_shared<QtURLTransport>());
    uikit::URLOpener::install(std::make_shared<QtURLOpener>());
  });
}

}  // namespace quorix::qt
