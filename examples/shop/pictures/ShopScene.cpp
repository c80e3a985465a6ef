#include "examples/shop/pictures/ShopScene.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QEventLoop>
#include <QTimer>

#include "examples/shop/Shop.h"
#include "examples/shop/StandInServices.h"

namespace quorix::examples {

void ShopScene::set(Shop& shop) const {
  shop.setMoving(false);
  shop.choose(choices);
  Bag bag;
  if (page == Page::bag) {
    for (const char* size : {"M", "M", "L"}) bag.add(QLatin1String(size));
  }
  shop.fillBag(bag);
  shop.openBag(page != Page::product);
}

namespace {

/// Whether the lower half shows more than a uniform background.
bool hasContent(const QImage& frame) {
  const QImage half = frame.copy(0, frame.height() / 2, frame.width(), frame.height() / 2 - 2);
  QImage plain(half.size(), half.format());
  plain.fill(half.pixelColor(half.width() / 2, half.height() - 1));
  return half != plain;
}

void wait(int milliseconds) {
  QEventLoop turns;
  QTimer::singleShot(milliseconds, &turns, &QEventLoop::quit);
  turns.exec();
}

}  // namespace

void settle() {
  QEventLoop turns;
  StandInServices::whenAnswered([&turns] { turns.quit(); });
  turns.exec();
  // A turn may queue work for the next one. A tap takes several turns until its sheet is open.
  constexpr int turnsOfATap = 20;
  for (int turn = 0; turn < turnsOfATap; ++turn) QCoreApplication::processEvents();
}

QImage frameWithPage(const std::function<QImage()>& grab) {
  constexpr int patience = 20'000;  // milliseconds
  QElapsedTimer elapsed;
  elapsed.start();
  QImage frame = grab();
  while (!elapsed.hasExpired(patience)) {
    wait(150);
    const QImage next = grab();
    if (hasContent(next) && next == frame) break;
    frame = next;
  }
  return frame;
}

}  // namespace quorix::examples
