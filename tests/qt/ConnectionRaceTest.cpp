#include <gtest/gtest.h>

#include <QElapsedTimer>
#include <QTcpServer>
#include <utility>

#include "qt/ConnectionRace.h"
#include "tests/qt/WaitUntil.h"

namespace quorix::testing {
namespace {

TEST(ConnectionRace, AnAddressThatDoesNotAnswerCostsLittleTime) {
  const QHostAddress live("127.0.0.1"), dead("127.0.0.2");
  QTcpServer answering, silent;
  ASSERT_TRUE(answering.listen(live));
  silent.setListenBacklogSize(0);
  ASSERT_TRUE(silent.listen(dead, answering.serverPort()));
  silent.pauseAccepting();
  QTcpSocket first, second;  // fill its queue, so that it drops what comes after
  for (QTcpSocket* socket : {&first, &second}) {
    socket->setProxy(QNetworkProxy::NoProxy);
    socket->connectToHost(dead, answering.serverPort());
  }
  ASSERT_TRUE(waitUntil([&] { return first.state() == QAbstractSocket::ConnectedState; }));

  qt::ConnectionRace::Socket winner;
  qt::ConnectionRace race(QString(), answering.serverPort(), false, QNetworkProxy::NoProxy,
                          [&](auto socket, auto, const auto&) { winner = std::move(socket); });
  QElapsedTimer timer;
  timer.start();
  race.begin({dead, live});
  ASSERT_TRUE(waitUntil([&] { return winner != nullptr; }));
  EXPECT_EQ(winner->peerAddress(), live);
  EXPECT_GE(timer.elapsed(), 200);  // the first address had its head start
  EXPECT_LT(timer.elapsed(), 5000);
}

}  // namespace
}  // namespace quorix::testing
