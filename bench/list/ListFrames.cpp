// Scrolls a list of 500 rows in a window from end to end, one step a frame, with the GPU renderer.
// Prints how many frames took more than 8 milliseconds, and how many requests were made.
//
//   list_frames ours|peer|empty

#include <QEventLoop>
#include <QGuiApplication>
#include <QQuickWindow>
#include <algorithm>
#include <atomic>
#include <chrono>
#include <cstdio>
#include <string_view>
#include <utility>
#include <vector>

#include "QuorixWidgets/score/ScoreWidgetBuilder.h"
#include "bench/BenchApplication.h"
#include "bench/list/RowList.h"
#include "platform/foundation/URLSession.h"
#include "qt/Engine.h"
#include "qt/Picture.h"
#include "qt/network/QtNetworkThread.h"

namespace quorix::bench {
namespace {

using Clock = std::chrono::steady_clock;

constexpr int kRows = 500;
constexpr double kStep = 25;  // points a frame: 1500 a second at 60 Hz
constexpr std::chrono::milliseconds kBudget{8};

/// Answers the first request with texts. Later ones go to the transport, which finds the prefetched
/// texts on the thread on which the library asks.
class Network final : public foundation::URLTransport {
 public:
  Network() { kept_.open(); }
  void start(const foundation::URL& url, Completion completion) override {
    if (requests == 0) {
      ++requests;
      return completion({{}, R"({"returns": {"title": "Your return fee"}})", 200});
    }
    kept_.start(url, [this, completion = std::move(completion)](foundation::URLResponse answer) {
      if (answer.error) ++requests;  // no prefetched texts
      completion(std::move(answer));
    });
  }
  std::atomic<int> requests = 0;

 private:
  foundation::NetworkTransport kept_{qt::makeNetworkThread};
};

/// Scrolls `list` to its end. Returns the time at which each frame was shown.
std::vector<Clock::time_point> scroll(QQuickWindow& window, QQuickItem& list) {
  const double end = list.property("contentHeight").toDouble() - window.height();
  std::vector<Clock::time_point> frames;
  frames.reserve(static_cast<std::size_t>(end / kStep) + 8);
  QEventLoop loop;
  // The render loop may draw on its own thread, which waits while the next frame is prepared.
  QObject::connect(
      &window, &QQuickWindow::frameSwapped, &window, [&] { frames.push_back(Clock::now()); },
      Qt::DirectConnection);
  QObject::connect(&window, &QQuickWindow::afterAnimating, &window, [&] {
    const double y = list.property("contentY").toDouble() + kStep;
    if (y > end) return loop.quit();
    list.setProperty("contentY", y);
    window.update();
  });
  window.update();
  loop.exec();
  window.disconnect(&window);
  return frames;
}

void report(RowList::Rows rows) {
  const auto network = std::make_shared<Network>();
  foundation::URLSession::shared().install(network);
  prefetch("en");
  BenchApplication::settle();
  std::vector<Shopper> shoppers;
  for (std::size_t i = 0; i < kRows; ++i) shoppers.emplace_back(i);
  qt::picture(shoppers.front().ours());  // registers the faces with Qt for the peer
  QQuickWindow window;
  window.resize(343, 720);
  RowList source(rows);
  const auto list = source.make(*window.contentItem(), shoppers, true);
  window.show();
  BenchApplication::settle();
  const auto frames = scroll(window, *list);
  long over = 0;
  std::vector<double> taken;
  for (std::size_t i = 1; i < frames.size(); ++i) {
    const auto time = frames[i] - frames[i - 1];
    if (time > kBudget) ++over;
    taken.push_back(std::chrono::duration<double, std::milli>(time).count());
  }
  std::nth_element(taken.begin(), taken.begin() + std::ptrdiff_t(taken.size() / 2), taken.end());
  std::printf(R"({"frames": %zu, "over": %ld, "median": %.3f, "rows": %d, "requests": %d})"
              "\n",
              taken.size(), over, taken[taken.size() / 2], list->property("taken").toInt(),
              network->requests.load());
}

}  // namespace
}  // namespace quorix::bench

int main(int argc, char** argv) {
  using quorix::bench::RowList;
  QQuickWindow::setGraphicsApi(QSGRendererInterface::OpenGL);
  const QGuiApplication application(argc, argv);
  quorix::qt::installEngine();
  const std::string_view rows = argc > 1 ? argv[1] : "";
  quorix::bench::report(rows == "ours"   ? RowList::Rows::ours
                        : rows == "peer" ? RowList::Rows::peer
                                         : RowList::Rows::empty);
  return 0;
}
