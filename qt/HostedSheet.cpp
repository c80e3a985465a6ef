#include "qt/HostedSheet.h"

#include <QElapsedTimer>
#include <QKeyEvent>
#include <functional>
#include <utility>

#include "qt/Conversions.h"
#include "qt/Input.h"
#include "qt/WebComponent.h"
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

}  // namespace

HostedSheet::HostedSheet(QObject& self, hosting::WindowSession& window, QString webComponent)
    : SheetSession(window, QtTextEngine::shared()),
      self_(self),
      webComponent_(std::move(webComponent)),
      clock_(std::make_unique<FrameClock>([this](double seconds) { return advance(seconds); })) {}

bool HostedSheet::handle(QEvent& event) {
  switch (event.type()) {
    case QEvent::ShortcutOverride:
      event.setAccepted(takes(toKeyEvent(static_cast<QKeyEvent&>(event)).key));
      return true;
    case QEvent::KeyRelease: {
      // A phone closes the window unless the release of its Back key is accepted.
      const auto key = toKeyEvent(static_cast<QKeyEvent&>(event)).key;
      event.setAccepted(key == hosting::Key::escape || key == hosting::Key::back);
      return true;
    }
    default:
      if (!passInput(event, *this)) return false;
      event.accept();  // also for other buttons, which must not reach what lies below
      return true;
  }
}

Qt::CursorShape HostedSheet::cursorAt(QPointF point) {
  return takesTapAt(toPoint(point)) ? Qt::PointingHandCursor : Qt::ArrowCursor;
}

void HostedSheet::vanish() {
  self_.setProperty("visible", false);
  self_.deleteLater();  // it may be handling an event
}

// Pages.

bool HostedSheet::canShowPages() const { return WebComponentLoader::isThere(webComponent_); }

bool HostedSheet::opensPagesAtOnce() const { return WebComponentLoader::isLoaded(webComponent_); }

std::unique_ptr<hosting::PageEngine> HostedSheet::openPage(const render::EmbedItem& embed,
                                                           hosting::PageEngine::Client& client) {
  const auto& content = dynamic_cast<const webkit::WebContent&>(*embed.content);
  const OpenWebPage open = WebComponentLoader::load(webComponent_);
  if (!open) return nullptr;
  const WebPage::Options options{content.settings, toQColor(embed.background)};
  return std::unique_ptr<WebPage>(open(self_, options, client));
}

QObject& HostedSheet::viewOf(const hosting::PageEngine& page) {
  return *static_cast<const WebPage&>(page).view();
}

std::vector<QObject*> HostedSheet::pageViews() const {
  std::vector<QObject*> views;
  for (const hosting::PageEngine* page : pages()) views.push_back(&viewOf(*page));
  return views;
}

}  // namespace quorix::qt
