#pragma once

#include <QObject>
#include <QUrl>

namespace quorix::examples {

class Shop;

/// Takes the addresses that are opened outside the app as long as it lives. No server has the
/// demo's invented host names, so the shop shows those addresses in a note. Others go to the
/// desktop. Main thread.
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
