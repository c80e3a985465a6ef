#include "examples/shop/Settling.h"

#include <QCoreApplication>
#include <QEventLoop>

#include "examples/shop/StandInServices.h"

namespace quorix::examples {

void settle() {
  QEventLoop turns;
  StandInServices::whenAnswered([&turns] { turns.quit(); });
  turns.exec();
  QCoreApplication::processEvents();
}

}  // namespace quorix::examples
