#include "qt/SheetSurface.h"

#include <QKeyEvent>
#include <QWheelEvent>
#include <utility>

#include "platform/hosting/SceneLayers.h"
#include "qt/Conversions.h"
#include "qt/Input.h"
#include "qt/Picture.h"
#include "qt/WebComponent.h"
#include "qt/accessibility/AccessibilityBridge.h"
#include "qt/accessibility/ViewAccessible.h"
#include "qt/painting/FocusRing.h"
#include "qt/text/QtTextEngine.h"

namespace quorix::qt {

SheetSurface::SheetSurface(QObject& self, hosting::WindowSession& window, QString webComponent)
    : SheetSession(window, QtTextEngine::shared()),
      self_(self),
      webComponent_(std::move(webComponent)),
      clock_([this](double seconds) { return advance(seconds); }) {}

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

void SheetSurface::focusMoved(bool later) {
  ViewAccessible::focusChanged(self_, later ? Qt::QueuedConnection : Qt::DirectConnection);
}

void SheetSurface::coverChanged() { AccessibilityBridge::coverChanged(); }

// Pictures.

std::vector<SheetSurface::Layer> SheetSurface::paintLayers() {
  const unsigned revision = presenter().panelRevision();
  const render::Scene& panel = presenter().panel();
  if (paintedRevision_ == revision && paintedScale_ == scale()) return {};
  paintedRevision_ = revision;
  paintedScale_ = scale();
  ringSize_.reset();
  std::vector<Layer> layers;
  for (const auto& layer : hosting::layersOf(panel, presenter().panelColor(), paintedScale_)) {
    layers.push_back(
        {paintPicture(layer.scene, paintedScale_, {0, 0, 0, 0}), toPoint(layer.origin)});
  }
  ViewAccessible::sceneChanged(self_);
  return layers;
}

void SheetSurface::paintAgain() {
  paintedRevision_.reset();
  needsFrame();
}

std::optional<SheetSurface::Layer> SheetSurface::ring() {
  const auto frame = ringFrame();
  if (!frame) return std::nullopt;
  Layer ring{{}, FocusRing::frameAround(*frame).topLeft()};
  if (ringSize_ != frame->size) {
    ring.picture = FocusRing::picture(*frame, presenter().panel().appearance, scale());
    ringSize_ = frame->size;
  }
  return ring;
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

QObject* SheetSurface::viewOf(const hosting::PageEngine& page) {
  return static_cast<const WebPage&>(page).view();
}

std::vector<QObject*> SheetSurface::pageViews() const {
  std::vector<QObject*> views;
  for (const hosting::PageEngine* page : pages()) views.push_back(viewOf(*page));
  return views;
}

}  // namespace quorix::qt
