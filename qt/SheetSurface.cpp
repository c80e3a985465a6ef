#include "qt/SheetSurface.h"

#include <QElapsedTimer>
#include <QKeyEvent>
#include <QPainter>
#include <QWheelEvent>
#include <algorithm>
#include <functional>
#include <utility>

#include "platform/hosting/SceneLayers.h"
#include "qt/Conversions.h"
#include "qt/Input.h"
#include "qt/Picture.h"
#include "qt/ViewAccessible.h"
#include "qt/WebComponent.h"
#include "qt/painting/FocusRing.h"
#include "qt/text/QtTextEngine.h"

namespace quorix::qt {
namespace {

/// Ticks once for each frame while it runs, in step with the window that is drawn. Main thread.
class FrameClock final : public QAbstractAnimation {
 public:
  /// `tick` gets the seconds since the last tick. The clock stops when it returns false.
  explicit FrameClock(std::function<bool(double)> tick) : tick_(std::move(tick)) {}

 private:
  int duration() const override { return -1; }  // without an end
  void updateState(State now, State) override {
    if (now == Running) sinceTick_.start();
  }
  void updateCurrentTime(int) override {
    if (state() != Running) return;
    const double seconds = static_cast<double>(sinceTick_.nsecsElapsed()) * 1e-9;
    sinceTick_.start();
    if (!tick_(seconds)) stop();
  }

  std::function<bool(double)> tick_;
  QElapsedTimer sinceTick_;
};

void clearTop(QImage& picture, double points) {
  if (points == 0) return;
  QPainter painter(&picture);
  painter.setCompositionMode(QPainter::CompositionMode_Clear);
  painter.fillRect(QRectF(0, 0, picture.width(), points), Qt::black);
}

}  // namespace

SheetSurface::SheetSurface(QObject& self, hosting::WindowSession& window, QString webComponent)
    : SheetSession(window, QtTextEngine::shared()),
      self_(self),
      webComponent_(std::move(webComponent)),
      clock_(std::make_unique<FrameClock>([this](double seconds) { return advance(seconds); })) {}

bool SheetSurface::handle(QEvent& event) {
  switch (event.type()) {
    case QEvent::Wheel:
      event.accept();
      return handle(toScrollEvent(static_cast<QWheelEvent&>(event)));
    case QEvent::ShortcutOverride:
      event.setAccepted(takes(toKeyEvent(static_cast<QKeyEvent&>(event)).key));
      return true;
    case QEvent::KeyPress:
      return handle(toKeyEvent(static_cast<QKeyEvent&>(event)));
    case QEvent::KeyRelease: {
      // A phone closes the window unless the release of its Back key is accepted.
      const auto key = toKeyEvent(static_cast<QKeyEvent&>(event)).key;
      event.setAccepted(key == hosting::Key::escape || key == hosting::Key::back);
      return true;
    }
    default:
      break;
  }
  if (!passPointer(event, *this)) return false;
  event.accept();  // also for other buttons, which must not reach what lies below
  return true;
}

Qt::CursorShape SheetSurface::cursorAt(QPointF point) {
  return takesTapAt(toPoint(point)) ? Qt::PointingHandCursor : Qt::ArrowCursor;
}

void SheetSurface::vanish() {
  self_.setProperty("visible", false);
  self_.deleteLater();  // it may be handling an event
}

void SheetSurface::focusMoved(bool later) {
  ViewAccessible::focusChanged(self_, later ? Qt::QueuedConnection : Qt::DirectConnection);
}

void SheetSurface::coverChanged() { ViewAccessible::coverChanged(); }

// Pictures.

bool SheetSurface::followFrame() {
  if (!isOpen()) return false;
  paintLayers();
  paintRing();
  if (!followMotion()) return false;
  const QRectF panel = toRect(presenter().panelFrame());
  for (const Layer& layer : layers_) layer.shown->moveTo(panel.topLeft() + layer.origin);
  if (ring_.shown) ring_.shown->moveTo(panel.topLeft() + ring_.origin);
  ground_ = {toQColor(presenter().shade()), panel, toQColor(presenter().panelColor())};
  ground_.below.setTop(std::min(panel.top() + panelHeight_, panel.bottom()));
  followPages();
  return true;
}

void SheetSurface::paintLayers() {
  const render::Scene& panel = presenter().panel();
  const Painted now{presenter().panelRevision(), scale()};
  if (painted_ == now) return;
  painted_ = now;
  ringFrame_.reset();
  std::size_t count = 0;
  for (const auto& layer : hosting::layersOf(panel, presenter().panelColor(), now.scale)) {
    QImage picture = paintPicture(layer.scene, now.scale, {0, 0, 0, 0});
    if (count == 0) {
      panelHeight_ = picture.deviceIndependentSize().height();
      clearTop(picture, hiddenTop_);
    }
    if (layers_.size() == count) {
      layers_.push_back({newPicture(int(count)), {}});
      ring_.shown.reset();  // which has to be above all layers
    }
    layers_[count].shown->setPicture(picture);
    layers_[count++].origin = toPoint(layer.origin);
  }
  layers_.erase(layers_.begin() + std::ptrdiff_t(count), layers_.end());
  ViewAccessible::sceneChanged(self_);
}

void SheetSurface::paintRing() {
  auto frame = ringFrame();
  if (!frame) {
    ring_.shown.reset();
    ringFrame_.reset();
    return;
  }
  // Rounded, because motion moves it by fractions of a pixel.
  const layout::Point corner = presenter().panelFrame().origin;
  frame = layout::PixelGrid(scale()).round(frame->translated({-corner.x, -corner.y}));
  if (ring_.shown && ringFrame_ == frame) return;
  if (!ring_.shown) ring_.shown = newPicture(int(layers_.size()));
  ring_.shown->setPicture(FocusRing::picture(*frame, presenter().panel().appearance, scale()));
  ring_.origin = FocusRing::frameAround(*frame).topLeft();
  ringFrame_ = frame;
}

void SheetSurface::paintAgain() {
  painted_.reset();
  needsFrame();
}

void SheetSurface::hideTop(double points) {
  if (std::exchange(hiddenTop_, points) != points) paintAgain();
}

// Pages.

bool SheetSurface::canShowPages() const { return WebComponentLoader::isThere(webComponent_); }

bool SheetSurface::opensPagesAtOnce() const { return WebComponentLoader::isLoaded(webComponent_); }

std::unique_ptr<hosting::PageEngine> SheetSurface::openPage(const render::EmbedItem& embed,
                                                            hosting::PageEngine::Client& client) {
  const auto& content = dynamic_cast<const webkit::WebContent&>(*embed.content);
  const OpenWebPage open = WebComponentLoader::load(webComponent_);
  if (!open) return nullptr;
  const WebPage::Options options{content.settings, toQColor(embed.background)};
  return std::unique_ptr<WebPage>(open(self_, options, client));
}

QObject& SheetSurface::viewOf(const hosting::PageEngine& page) {
  return *static_cast<const WebPage&>(page).view();
}

std::vector<QObject*> SheetSurface::pageViews() const {
  std::vector<QObject*> views;
  for (const hosting::PageEngine* page : pages()) views.push_back(&viewOf(*page));
  return views;
}

}  // namespace quorix::qt
