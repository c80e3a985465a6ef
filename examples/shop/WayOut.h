#pragma once

#include <QObject>
#include <QUrl>

namespace quorix::examples {

class Shop;

/// Handles the addresses that are opened outside the app while it exists. The demo's host names are
/// invented, so the shop shows those addresses in a note. Other addresses go to the desktop. Main
/// thread.
class WayOut : public QObject {
  Q_OBJECT

 public:
  explicit WayOut(Shop& shop);
  ~WayOut() override;

 private:
  Q_INVOKABLE void open(const QUrl& address);

  Shop& shop_;
};

}  // namespace quorix::examples
