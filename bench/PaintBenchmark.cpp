// A builder call to a painted row: ours beside the same row in QML and in Qt Widgets. Every row
// shows other fees than the ones before it, and lands in an image of the same size.

#include <benchmark/benchmark.h>

#include <time.h>

#include <QApplication>
#include <QQuickItem>
#include <cstdlib>
#include <memory>
#include <vector>

#include "bench/LabelsRow.h"
#include "bench/QmlRows.h"
#include "bench/QuickStage.h"
#include "bench/Shopper.h"
#include "qt/Engine.h"
#include "qt/Picture.h"
#include "qt/quick/ViewItem.h"

namespace quorix::bench {
namespace {

constexpr QSize kSize(343, 17);

/// Whose rows are painted, one after the other.
enum Shoppers { same, different };

/// One shopper all the time, as on the pages of a shop; or always another, of more than any cache
/// of texts holds.
const Shopper& nextShopper(benchmark::State& state) {
  static const std::vector<Shopper> shoppers = [] {
    std::vector<Shopper> all;
    for (std::size_t i = 0; i < 997; ++i) all.push_back(Shopper::make(i));
    return all;
  }();
  static std::size_t next = 0;
  return state.range(0) == same ? shoppers.front() : shoppers[next++ % shoppers.size()];
}

void requireInk(const QImage& image) {
  for (int y = 0; y < image.height(); ++y) {
    for (int x = 0; x < image.width(); ++x) {
      const QRgb pixel = image.pixel(x, y);
      if (qAlpha(pixel) > 192 && qGray(pixel) < 64) return;
    }
  }
  std::abort();  // nothing was painted
}

/// The processor time that this thread has had: on a machine that does other things besides, the
/// clock on the wall says little. Everything that is timed here runs on this one thread.
double threadSeconds() {
  timespec now{};
  clock_gettime(CLOCK_THREAD_CPUTIME_ID, &now);
  return static_cast<double>(now.tv_sec) + 1e-9 * static_cast<double>(now.tv_nsec);
}

/// Times `paint` alone; `cleanUp` takes the row away again.
template <class Paint, class CleanUp>
void run(benchmark::State& state, Paint paint, CleanUp cleanUp) {
  for (auto _ : state) {
    const Shopper& shopper = nextShopper(state);
    const double start = threadSeconds();
    paint(shopper);
    state.SetIterationTime(threadSeconds() - start);
    cleanUp();
    QCoreApplication::processEvents();
  }
}

void oursInPicture(benchmark::State& state) {
  qt::PictureOptions options;
  options.width = kSize.width();
  options.height = kSize.height();
  options.background = graphics::RGBA{0, 0, 0, 0};  // as on the library's surfaces
  QImage image;
  run(
      state, [&](const Shopper& shopper) { image = qt::picture(shopper.row(), options); }, [] {});
  requireInk(image);
}

void oursInWindow(benchmark::State& state) {
  QuickStage stage(kSize);
  std::unique_ptr<qt::ViewItem> item;
  run(
      state,
      [&](const Shopper& shopper) {
        item = std::make_unique<qt::ViewItem>(shopper.row(), stage.root());
        item->setSize(kSize);
        stage.frame();
      },
      [&] {
        requireInk(stage.image());
        item.reset();
        stage.frame();
      });
}

void qml(benchmark::State& state, const QString& file) {
  QuickStage stage(kSize);
  QmlRows rows(file);
  std::unique_ptr<QQuickItem> item;
  run(
      state,
      [&](const Shopper& shopper) {
        item.reset(rows.make(shopper, stage.root(), kSize.width()));
        stage.frame();
      },
      [&] {
        requireInk(stage.image());
        item.reset();
        stage.frame();
      });
}

void labels(benchmark::State& state) {
  QWidget page;
  QImage image(kSize, QImage::Format_ARGB32_Premultiplied);
  std::unique_ptr<LabelsRow> row;
  run(
      state,
      [&](const Shopper& shopper) {
        row = std::make_unique<LabelsRow>(shopper, &page);
        row->resize(kSize);
        row->render(&image);
      },
      [&] {
        requireInk(image);
        row.reset();
      });
}

void bothShoppers(benchmark::internal::Benchmark* benchmark) {
  benchmark->Arg(same)->Arg(different)->UseManualTime()->Unit(benchmark::kMicrosecond);
}

BENCHMARK(oursInPicture)->Apply(bothShoppers);
BENCHMARK(oursInWindow)->Apply(bothShoppers);
BENCHMARK_CAPTURE(qml, layout, QStringLiteral("ScoreRow"))->Apply(bothShoppers);
BENCHMARK_CAPTURE(qml, anchors, QStringLiteral("LeanScoreRow"))->Apply(bothShoppers);
BENCHMARK(labels)->Apply(bothShoppers);

}  // namespace
}  // namespace quorix::bench

int main(int argc, char** argv) {
  QQuickWindow::setGraphicsApi(QSGRendererInterface::Software);
  QApplication app(argc, argv);
  quorix::qt::installEngine();
  quorix::bench::loadFaces();
  benchmark::Initialize(&argc, argv);
  if (benchmark::ReportUnrecognizedArguments(argc, argv)) return 2;
  benchmark::RunSpecifiedBenchmarks();
  return 0;
}
