#include "examples/shop/WayOut.h"

#include <QDesktopServices>

#include "examples/shop/Shop.h"

namespace quorix::examples {
namespace {

const QString scheme = QStringLiteral("https");

}  // namespace

WayOut::WayOut(Shop& shop) : shop_(shop) { QDesktopServices::setUrlHandler(scheme, this, "open"); }

WayOut::~WayOut() { QDesktopServices::unsetUrlHandler(scheme); }

void WayOut::open(const QUrl& address) {
  if (address.host().endsWith(QLatin1String(".example"))) {
    shop_.leaveFor(address.toDisplayString());
    return;
  }
  QDesktopServices::unsetUrlHandler(scheme);
  QDesktopServices::openUrl(address);
  QDesktopServices::setUrlHandler(scheme, this, "open");
}

}  // namespace quorix::examples
