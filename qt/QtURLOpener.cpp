#include "qt/QtURLOpener.h"

#include <QDesktopServices>
#include <QGuiApplication>

#include "qt/Conversions.h"

namespace quorix::qt {

void QtURLOpener::open(const foundation::URL& url) {
  if (!qobject_cast<QGuiApplication*>(QCoreApplication::instance())) return;
  const QUrl address = toQUrl(url);
  if (address.isValid()) QDesktopServices::openUrl(address);
}

}  // namespace quorix::qt
