// Makes COUNT rows of one KIND live in a window that has room for some thirty of them, and prints
// what they cost. One kind and count for each process, so that no run inherits another's memory.
//
//   live_rows quorix|layout|anchors|labels COUNT

#include <malloc.h>

#include <QApplication>
#include <QFile>
#include <QQuickItem>
#include <QQuickWindow>
#include <QTimer>
#include <algorithm>
#include <atomic>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "bench/LabelsRow.h"
#include "bench/QmlRows.h"
#include "bench/Shopper.h"
#include "platform/foundation/URLSession.h"
#include "qt/Engine.h"
#include "qt/quick/ViewItem.h"

namespace quorix::bench {
namespace {

using Clock = std::chrono::steady_clock;

constexpr double kRowHeight = 24;
constexpr QSize kWindow(343, 720);
constexpr std::size_t kChunk = 100;

struct Memory {
  double heap;      ///< bytes handed out by malloc
  double resident;  ///< bytes of the process in memory

  static Memory now() {
    malloc_trim(0);
    const auto info = mallinfo2();
    QFile file(QStringLiteral("/proc/self/statm"));
    if (!file.open(QIODevice::ReadOnly)) std::abort();
    const double pages = file.readAll().split(' ').at(1).toDouble();
    return {static_cast<double>(info.uordblks + info.hblkhd), pages * 4096};
  }
};

/// Turns the event loop until the window has nothing left to do.
void settle() {
  QEventLoop loop;
  QTimer::singleShot(300, &loop, &QEventLoop::quit);
  loop.exec();
}

/// Makes the rows of one kind, and places each below the one before it.
class Rows {
 public:
  virtual ~Rows() = default;
  virtual void add(const Shopper& shopper, double y) = 0;
  virtual void clear() = 0;
};

class QuickRows : public Rows {
 public:
  QuickRows() {
    window_.setColor(Qt::white);
    window_.resize(kWindow);
    window_.show();
  }
  void add(const Shopper& shopper, double y) final {
    QQuickItem* row = make(shopper, window_.contentItem());
    row->setY(y);
    rows_.emplace_back(row);
  }
  void clear() final { rows_.clear(); }

 protected:
  virtual QQuickItem* make(const Shopper& shopper, QQuickItem* parent) = 0;

 private:
  QQuickWindow window_;
  std::vector<std::unique_ptr<QQuickItem>> rows_;
};

class OurRows final : public QuickRows {
  QQuickItem* make(const Shopper& shopper, QQuickItem* parent) override {
    auto* row = new qt::ViewItem(shopper.row(), parent);
    row->setWidth(kWindow.width());
    return row;
  }
};

class PeerRows final : public QuickRows {
 public:
  explicit PeerRows(const QString& file) : qml_(file) {}

 private:
  QQuickItem* make(const Shopper& shopper, QQuickItem* parent) override {
    return qml_.make(shopper, parent, kWindow.width());
  }
  QmlRows qml_;
};

class LabelRows final : public Rows {
 public:
  LabelRows() {
    window_.resize(kWindow);
    window_.show();
  }
  void add(const Shopper& shopper, double y) override {
    rows_.push_back(std::make_unique<LabelsRow>(shopper, &window_));
    rows_.back()->setGeometry(0, static_cast<int>(y), kWindow.width(),
                              static_cast<int>(kRowHeight));
    rows_.back()->show();
  }
  void clear() override { rows_.clear(); }

 private:
  QWidget window_;
  std::vector<std::unique_ptr<LabelsRow>> rows_;
};

std::unique_ptr<Rows> makeRows(const std::string& kind) {
  if (kind == "quorix") return std::make_unique<OurRows>();
  if (kind == "layout") return std::make_unique<PeerRows>(QStringLiteral("ScoreRow"));
  if (kind == "anchors") return std::make_unique<PeerRows>(QStringLiteral("LeanScoreRow"));
  if (kind == "labels") return std::make_unique<LabelRows>();
  return nullptr;
}

/// Answers every request for texts with nothing new, in the process.
std::shared_ptr<void> answerRequests() {
  return foundation::URLSession::shared().registerProtocol([](const foundation::URL&) {
    return foundation::URLResponse{{}, {}, 404};
  });
}

void report(const std::string& kind, std::size_t count) {
  const auto rows = makeRows(kind);
  if (!rows) std::exit(2);
  for (int i = 0; i < 50; ++i)
    rows->add(Shopper::make(static_cast<std::size_t>(i)), kRowHeight * i);
  settle();
  rows->clear();
  settle();

  std::vector<Shopper> shoppers;
  for (std::size_t i = 0; i < count; ++i) shoppers.push_back(Shopper::make(i));
  const Memory before = Memory::now();
  std::vector<double> chunks;  // microseconds a row
  for (std::size_t i = 0; i < count; i += kChunk) {
    const std::size_t end = std::min(count, i + kChunk);
    const auto start = Clock::now();
    for (std::size_t k = i; k < end; ++k)
      rows->add(shoppers[k], kRowHeight * static_cast<double>(k));
    const std::chrono::duration<double, std::micro> taken = Clock::now() - start;
    chunks.push_back(taken.count() / static_cast<double>(end - i));
  }
  settle();
  const Memory after = Memory::now();
  const auto n = static_cast<double>(count);
  std::printf(
      "{\"kind\": \"%s\", \"count\": %zu, \"heap\": %.0f, \"resident\": %.0f, \"chunks\": [",
      kind.c_str(), count, (after.heap - before.heap) / n, (after.resident - before.resident) / n);
  for (std::size_t i = 0; i < chunks.size(); ++i) std::printf("%s%.2f", i ? ", " : "", chunks[i]);
  std::printf("]}\n");
}

}  // namespace
}  // namespace quorix::bench

int main(int argc, char** argv) {
  QQuickWindow::setGraphicsApi(QSGRendererInterface::Software);
  QApplication app(argc, argv);
  quorix::qt::installEngine();
  if (argc != 3) return 2;
  const auto protocol = quorix::bench::answerRequests();
  quorix::bench::loadFaces();
  quorix::bench::report(argv[1], std::stoul(argv[2]));
  return 0;
}
