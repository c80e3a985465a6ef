#pragma once

#include <QObject>
#include <QUrl>

namespace quorix::examples {

class Shop;

/// Takes the addresses that are opened outside the app as long as it lives. Nothing answers under
/// the demo's own made-up names: the shop is told of those instead. Others go to the desktop.
/// Main thread.
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
