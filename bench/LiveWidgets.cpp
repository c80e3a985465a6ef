// Makes COUNT live widgets of one kind in a window that shows only the first of them, and prints
// their cost. One kind and count for each process, so that a run does not start with another's
// memory.
//
//   live_widgets row|declarative|imperative ours|labels|QML-FILE COUNT

#include <malloc.h>

#include <QFile>
#include <QQuickItem>
#include <QQuickWindow>
#include <QWidget>
#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "bench/BenchApplication.h"
#include "bench/QuickStage.h"
#include "bench/Subjects.h"
#include "qt/quick/ViewItem.h"

namespace quorix::bench {
namespace {

using Clock = std::chrono::steady_clock;

constexpr QSize kWindow(343, 720);
constexpr std::size_t kChunk = 100;

struct Memory {
  double heap;      ///< bytes allocated by malloc
  double resident;  ///< resident memory of the process, bytes

  static Memory now() {
    malloc_trim(0);
    const auto info = mallinfo2();
    QFile file(QStringLiteral("/proc/self/statm"));
    if (!file.open(QIODevice::ReadOnly)) std::abort();
    const double pages = file.readAll().split(' ').at(1).toDouble();
    return {static_cast<double>(info.uordblks + info.hblkhd), pages * 4096};
  }
};

/// Makes live widgets in a window, and places each below the one before it.
class Window {
 public:
  virtual ~Window() = default;
  virtual void add(const Subject& subject, double y) = 0;
  virtual void clear() = 0;
};

class QuickWindow final : public Window {
 public:
  using Make = std::function<QQuickItem*(const Subject&, QQuickItem* parent)>;

  explicit QuickWindow(Make make) : make_(std::move(make)) {
    window_.setColor(Qt::white);
    window_.resize(kWindow);
    window_.show();
  }
  void add(const Subject& subject, double y) override {
    QQuickItem* item = make_(subject, window_.contentItem());
    item->setY(y);
    items_.emplace_back(item);
  }
  void clear() override { items_.clear(); }

 private:
  Make make_;
  QQuickWindow window_;
  std::vector<std::unique_ptr<QQuickItem>> items_;
};

class LabelsWindow final : public Window {
 public:
  explicit LabelsWindow(int height) : height_(height) {
    window_.resize(kWindow);
    window_.show();
  }
  void add(const Subject& subject, double y) override {
    widgets_.emplace_back(subject.labels(&window_));
    widgets_.back()->setGeometry(0, static_cast<int>(y), kWindow.width(), height_);
    widgets_.back()->show();
  }
  void clear() override { widgets_.clear(); }

 private:
  int height_;
  QWidget window_;
  std::vector<std::unique_ptr<QWidget>> widgets_;
};

QQuickItem* ours(const Subject& subject, QQuickItem* parent) {
  auto* item = new qt::ViewItem(subject.ours(), parent);
  item->setWidth(kWindow.width());
  return item;
}

/// A kind of live widget and its window.
struct Kind {
  std::string of;    ///< "row", "declarative" or "imperative"
  std::string made;  ///< "ours", "labels" or a file in QML

  int height() const { return of == "row" ? 24 : 96; }

  std::unique_ptr<Subject> subject(std::size_t number) const {
    if (of == "row") return std::make_unique<Shopper>(number);
    return std::make_unique<InfoSubject>(of == "imperative" ? InfoSubject::Form::imperative
                                                            : InfoSubject::Form::declarative);
  }

  std::unique_ptr<Window> window() const {
    if (made == "labels") return std::make_unique<LabelsWindow>(height());
    if (made == "ours") return std::make_unique<QuickWindow>(ours);
    const auto qml = std::make_shared<QmlPeer>(QString::fromStdString(made));
    return std::make_unique<QuickWindow>([qml](const Subject& subject, QQuickItem* parent) {
      return qml->make(subject, parent, kWindow.width());
    });
  }
};

void report(const Kind& kind, std::size_t count) {
  const auto window = kind.window();
  for (std::size_t i = 0; i < 50; ++i) {
    window->add(*kind.subject(i), kind.height() * static_cast<double>(i));
  }
  BenchApplication::settle();
  window->clear();
  BenchApplication::settle();

  std::vector<std::unique_ptr<Subject>> subjects;
  for (std::size_t i = 0; i < count; ++i) subjects.push_back(kind.subject(i));
  const Memory before = Memory::now();
  std::vector<double> chunks;  // microseconds for each widget
  for (std::size_t i = 0; i < count; i += kChunk) {
    const std::size_t end = std::min(count, i + kChunk);
    const auto start = Clock::now();
    for (std::size_t k = i; k < end; ++k) {
      window->add(*subjects[k], kind.height() * static_cast<double>(k));
    }
    const std::chrono::duration<double, std::micro> taken = Clock::now() - start;
    chunks.push_back(taken.count() / static_cast<double>(end - i));
  }
  BenchApplication::settle();
  const Memory after = Memory::now();
  const auto n = static_cast<double>(count);
  std::printf("{\"heap\": %.0f, \"resident\": %.0f, \"chunks\": [", (after.heap - before.heap) / n,
              (after.resident - before.resident) / n);
  for (std::size_t i = 0; i < chunks.size(); ++i) std::printf("%s%.2f", i ? ", " : "", chunks[i]);
  std::printf("]}\n");
}

}  // namespace
}  // namespace quorix::bench

int main(int argc, char** argv) {
  const quorix::bench::BenchApplication application(argc, argv);
  if (argc != 4) return 2;
  quorix::bench::report({argv[1], argv[2]}, std::stoul(argv[3]));
  return 0;
}
