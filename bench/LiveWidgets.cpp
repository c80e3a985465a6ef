// Makes COUNT live widgets of one kind in a window that shows only the first of them, and prints
// their cost. One kind and count for each process, so that a run does not start with another's
// memory.
//
//   live_widgets row|declarative|imperative ours|QML-FILE COUNT

#include <malloc.h>

#include <QQuickItem>
#include <QQuickWindow>
#include <algorithm>
#include <chrono>
#include <cstdio>
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

/// Bytes allocated by malloc.
double heap() {
  malloc_trim(0);
  const auto info = mallinfo2();
  return static_cast<double>(info.uordblks + info.hblkhd);
}

/// Makes live widgets in a window, and places each below the one before it.
class Window {
 public:
  using Make = std::function<QQuickItem*(const Subject&, QQuickItem* parent)>;

  explicit Window(Make make) : make_(std::move(make)) {
    window_.setColor(Qt::white);
    window_.resize(kWindow);
    window_.show();
  }
  void add(const Subject& subject, double y) {
    QQuickItem* item = make_(subject, window_.contentItem());
    item->setY(y);
    items_.emplace_back(item);
  }
  void clear() { items_.clear(); }

 private:
  Make make_;
  QQuickWindow window_;
  std::vector<std::unique_ptr<QQuickItem>> items_;
};

QQuickItem* ours(const Subject& subject, QQuickItem* parent) {
  auto* item = new qt::ViewItem(subject.ours(), parent);
  item->setWidth(kWindow.width());
  return item;
}

/// A kind of live widget and its window.
struct Kind {
  std::string of;    ///< "row", "declarative" or "imperative"
  std::string made;  ///< "ours" or a file in QML

  int height() const { return of == "row" ? 24 : 96; }

  std::unique_ptr<Subject> subject(std::size_t number) const {
    if (of == "row") return std::make_unique<Shopper>(number);
    return std::make_unique<InfoSubject>(of == "imperative" ? InfoSubject::Form::imperative
                                                            : InfoSubject::Form::declarative);
  }

  Window::Make make() const {
    if (made == "ours") return ours;
    const auto qml = std::make_shared<QmlPeer>(QString::fromStdString(made));
    return [qml](const Subject& subject, QQuickItem* parent) {
      return qml->make(subject.properties(), parent, kWindow.width());
    };
  }
};

void report(const Kind& kind, std::size_t count) {
  Window window(kind.make());
  for (std::size_t i = 0; i < 50; ++i) {
    window.add(*kind.subject(i), kind.height() * static_cast<double>(i));
  }
  BenchApplication::settle();
  window.clear();
  BenchApplication::settle();

  std::vector<std::unique_ptr<Subject>> subjects;
  for (std::size_t i = 0; i < count; ++i) subjects.push_back(kind.subject(i));
  const double before = heap();
  std::vector<double> chunks;  // microseconds for each widget
  for (std::size_t i = 0; i < count; i += kChunk) {
    const std::size_t end = std::min(count, i + kChunk);
    const auto start = Clock::now();
    for (std::size_t k = i; k < end; ++k) {
      window.add(*subjects[k], kind.height() * static_cast<double>(k));
    }
    const std::chrono::duration<double, std::micro> taken = Clock::now() - start;
    chunks.push_back(taken.count() / static_cast<double>(end - i));
  }
  BenchApplication::settle();
  const double after = heap();
  std::printf("{\"heap\": %.0f, \"chunks\": [", (after - before) / static_cast<double>(count));
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
