#include "qt/QtURLOpener.h"

#include <QByteArray>
#include <QDesktopServices>
#include <QGuiApplication>
#include <QUrl>

namespace quorix::qt {

void QtURLOpener::open(const foundation::URL& url) {
  if (!qobject_cast<QGuiApplication*>(QCoreApplication::instance())) return;
  // Strict, so that Qt's guesses cannot turn it into another address than the one let through.
  const QUrl address =
      QUrl::fromEncoded(QByteArray::fromStdString(url.absoluteString()), QUrl::StrictMode);
  if (address.isValid()) QDesktopServices::openUrl(address);
}

}  // namespace quorix::qt
