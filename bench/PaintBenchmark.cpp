// Times a builder call up to the painted widget: ours and the same in QML and in Qt Widgets, each
// in an image of the same size. "same" and "different" are score rows, of one shopper or of another
// one each time. "declarative" and "imperative" are info widgets; their peers are "info".

#include <benchmark/benchmark.h>

#include <QQuickItem>
#include <QQuickWindow>
#include <QSGImageNode>
#include <QWidget>
#include <cstdlib>
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "bench/BenchApplication.h"
#include "bench/QuickStage.h"
#include "bench/Subjects.h"
#include "qt/Picture.h"
#include "qt/quick/ViewItem.h"

namespace quorix::bench {
namespace {

/// The subjects that are painted one after the other, and the size of the image.
struct Series {
  std::vector<std::unique_ptr<Subject>> subjects;
  QSize size;
  std::size_t turn = 0;

  const Subject& next() { return *subjects[turn++ % subjects.size()]; }
};

/// `shoppers` is the number on a shop's pages, or more than a cache of texts can hold.
Series rows(std::size_t shoppers) {
  Series series{{}, {343, 17}};
  for (std::size_t i = 0; i < shoppers; ++i)
    series.subjects.push_back(std::make_unique<Shopper>(i));
  return series;
}

Series info(InfoSubject::Form form) {
  Series series{{}, {343, 96}};
  series.subjects.push_back(std::make_unique<InfoSubject>(form));
  return series;
}

/// Stops the process if the upper half, with the first text, is empty.
void requireInk(const QImage& image) {
  for (int y = 0; y < (image.height() + 1) / 2; ++y) {
    for (int x = 0; x < image.width(); ++x) {
      const QRgb pixel = image.pixel(x, y);
      if (qAlpha(pixel) > 192 && qGray(pixel) < 64) return;
    }
  }
  std::abort();  // nothing was painted
}

/// Times only `paint`; `cleanUp` removes the widget afterwards.
template <class Paint, class CleanUp>
void run(benchmark::State& state, Series& series, Paint paint, CleanUp cleanUp) {
  for (auto _ : state) {
    const Subject& subject = series.next();
    const double start = BenchApplication::threadSeconds();
    paint(subject);
    state.SetIterationTime(BenchApplication::threadSeconds() - start);
    cleanUp();
    QCoreApplication::processEvents();
  }
}

void oursInPicture(benchmark::State& state, Series& series) {
  qt::PictureOptions options;
  options.width = series.size.width();
  options.height = series.size.height();
  options.background = graphics::RGBA{0, 0, 0, 0};  // like the library's surfaces
  QImage image;
  run(
      state, series, [&](const Subject& subject) { image = qt::picture(subject.ours(), options); },
      [] {});
  requireInk(image);
}

/// Times `make`, which makes an item for a subject, up to the next frame of a window.
template <class Make>
void inWindow(benchmark::State& state, Series& series, Make make) {
  QuickStage stage(series.size);
  std::unique_ptr<QQuickItem> item;
  run(
      state, series,
      [&](const Subject& subject) {
        item.reset(make(subject, stage.root()));
        stage.frame();
      },
      [&] {
        requireInk(stage.image());
        item.reset();
        stage.frame();
      });
}

void oursInWindow(benchmark::State& state, Series& series) {
  inWindow(state, series, [&](const Subject& subject, QQuickItem* root) {
    auto* item = new qt::ViewItem(subject.ours(), root);
    item->setSize(series.size);
    return item;
  });
}

/// Shows a finished image: the minimum cost of an item with a picture.
class BareImageItem final : public QQuickItem {
 public:
  BareImageItem(const QImage& image, QQuickItem* parent) : QQuickItem(parent), image_(image) {
    setFlag(ItemHasContents);
    setSize(image.size());
  }

 protected:
  QSGNode* updatePaintNode(QSGNode* old, UpdatePaintNodeData*) override {
    auto* node = static_cast<QSGImageNode*>(old);
    if (!node) node = window()->createImageNode();
    node->setTexture(window()->createTextureFromImage(image_));
    node->setOwnsTexture(true);
    node->setRect(boundingRect());
    return node;
  }

 private:
  const QImage image_;
};

void bareImage(benchmark::State& state, Series& series) {
  qt::PictureOptions options;
  options.width = series.size.width();
  options.height = series.size.height();
  options.background = graphics::RGBA{0, 0, 0, 0};
  const QImage image = qt::picture(series.next().ours(), options);
  inWindow(state, series, [&](const Subject&, QQuickItem* root) {
    // Copy the image, because the surface too paints an image each time.
    return new BareImageItem(image.copy(), root);
  });
}

void qml(benchmark::State& state, Series& series, const QString& file) {
  QmlPeer peer(file);
  inWindow(state, series, [&](const Subject& subject, QQuickItem* root) {
    return peer.make(subject.properties(), root, series.size.width());
  });
}

void labels(benchmark::State& state, Series& series) {
  QWidget page;
  QImage image(series.size, QImage::Format_ARGB32_Premultiplied);
  std::unique_ptr<QWidget> widget;
  run(
      state, series,
      [&](const Subject& subject) {
        widget.reset(subject.labels(&page));
        widget->resize(series.size);
        widget->render(&image);
      },
      [&] {
        requireInk(image);
        widget.reset();
      });
}

template <class Run>
void add(const std::string& name, Series& series, Run run) {
  benchmark::RegisterBenchmark(name.c_str(),
                               [&series, run](benchmark::State& state) { run(state, series); })
      ->UseManualTime()
      ->Unit(benchmark::kMicrosecond);
}

void addOurs(const std::string& name, Series& series) {
  add("oursInPicture/" + name, series, oursInPicture);
  add("oursInWindow/" + name, series, oursInWindow);
}

/// `file` is the name of the peer in QML.
void addPeers(const std::string& name, Series& series, const char* file) {
  add("labels/" + name, series, labels);
  add(std::string(file) + '/' + name, series, [file](benchmark::State& state, Series& painted) {
    qml(state, painted, QLatin1String(file));
  });
}

}  // namespace
}  // namespace quorix::bench

int main(int argc, char** argv) {
  using namespace quorix::bench;
  const BenchApplication application(argc, argv);
  Series same = rows(1), different = rows(997);
  for (auto& [name, series] :
       {std::pair<const char*, Series&>{"same", same}, {"different", different}}) {
    addOurs(name, series);
    addPeers(name, series, "LeanScoreRow");
    add(std::string("bareImage/") + name, series, bareImage);
  }
  Series declarative = info(InfoSubject::Form::declarative);
  Series imperative = info(InfoSubject::Form::imperative);
  addOurs("declarative", declarative);
  addOurs("imperative", imperative);
  addPeers("info", declarative, "InfoWidget");
  benchmark::Initialize(&argc, argv);
  if (benchmark::ReportUnrecognizedArguments(argc, argv)) return 2;
  benchmark::RunSpecifiedBenchmarks();
  return 0;
}
