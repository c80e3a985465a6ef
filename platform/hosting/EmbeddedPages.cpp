#include "platform/hosting/EmbeddedPages.h"

#include <algorithm>
#include <limits>
#include <utility>

#include "platform/foundation/MainQueue.h"
#include "platform/hosting/SheetPanel.h"
#include "platform/layout/Geometry.h"
#include "platform/uikit/URLOpener.h"
#include "platform/webkit/PageScripts.h"

namespace quorix::hosting {
namespace {

using foundation::MainQueue;
using std::chrono::milliseconds;
using webkit::WebContent;
namespace PageScripts = webkit::PageScripts;

/// How long a page may take to answer before it counts as hanging. Closing, with the sheet's fall,
/// then takes less than a second.
constexpr milliseconds answerTimeout{400};

milliseconds toMilliseconds(foundation::URLRequest::Seconds seconds) {
  constexpr double longest = std::numeric_limits<int>::max();
  return milliseconds(static_cast<int>(std::clamp(seconds.count() * 1000, 0.0, longest)));
}

const WebContent* pageOf(const render::Item& item) {
  const auto* embed = std::get_if<render::EmbedItem>(&item);
  return embed ? dynamic_cast<const WebContent*>(embed->content.get()) : nullptr;
}

}  // namespace

std::unique_ptr<EmbeddedPage> EmbeddedPage::open(const render::EmbedItem& embed, Owner& owner) {
  auto content = std::dynamic_pointer_cast<WebContent>(embed.content);
  std::unique_ptr<EmbeddedPage> page(new EmbeddedPage(content, owner));
  page->engine_ = owner.openPage(embed, *page);
  if (!page->engine_) return nullptr;
  content->attach([made = page.get()](const foundation::URLRequest& request) {
    made->loadTimeout_ = toMilliseconds(request.timeoutInterval);
    if (webkit::mayNavigateTo(request.url.scheme())) made->engine_->load(request.url);
  });
  return page;
}

EmbeddedPage::~EmbeddedPage() {
  if (engine_) content_->detach();
}

void EmbeddedPage::start(Timer& timer, milliseconds after, std::function<void()> work) {
  timer = std::make_shared<std::function<void()>>(std::move(work));
  MainQueue::after(after, [weak = std::weak_ptr(timer)] {
    if (const auto ran = weak.lock()) (*ran)();
  });
}

void EmbeddedPage::later(std::function<void()> work) {
  MainQueue::async([self = std::weak_ptr(alive_), work = std::move(work)] {
    if (!self.expired()) work();
  });
}

// Load and process.

void EmbeddedPage::loading(int percent) {
  hasData_ = percent > 0;
  start(loadTimer_, loadTimeout_, [this] {
    engine_->stopLoad(loadTimeout_);
    if (!hasData_) loadFailed();
  });
}

void EmbeddedPage::loadEnded(int error) {
  loadTimer_.reset();
  if (webkit::broughtNothing(error)) loadFailed();
}

void EmbeddedPage::loadFailed() {
  later([this, kept = content_] {
    owner_.pageEnded();
    kept->loadFailed();
  });
}

bool EmbeddedPage::mayNavigate(std::string_view scheme, std::string_view address, bool mainFrame) {
  if (webkit::mayNavigateTo(scheme)) return true;
  const bool byUser = gesture_.take(webkit::UserGesture::Clock::now());
  if (byUser || mainFrame) windowAsked(address, byUser);
  return false;
}

void EmbeddedPage::windowAsked(std::string_view address, bool byUser) {
  const auto url = foundation::URL::parse(address);
  later([kept = content_, url, byUser] { kept->askForWindow(url, byUser); });
}

void EmbeddedPage::processEnded() {
  loadTimer_.reset();
  answerTimer_.reset();
  later([this, kept = content_] {
    owner_.pageEnded();
    kept->processEnded();
  });
}

// Keys.

/// Asks the page whether it is alive. Calls `then` when it answers.
void EmbeddedPage::expectAnswer(std::function<void()> then) {
  onAnswer_ = std::move(then);
  if (!content_->settings.allowsContentJavaScript) return answered(PageScripts::alive);
  if (!answerTimer_) {
    start(answerTimer_, answerTimeout, [this] { answerTimer_.reset(), owner_.pageHangs(); });
  }
  engine_->ask(PageScripts::isAlive);
}

void EmbeddedPage::answered(std::string_view answer) {
  if (answer == PageScripts::alive) {
    answerTimer_.reset();
    if (const auto then = std::exchange(onAnswer_, {})) then();
    return;
  }
  if (answer.empty()) return;  // from a page that is gone
  if (const auto direction = std::exchange(askedFor_, {})) {
    if (answer != PageScripts::unused) return;
    trackpadSwipe_.spend();
    go(*direction);
  }
}

bool EmbeddedPage::wouldUse(Key key) const {
  if (!content_->settings.allowsBackForwardNavigationGestures) return false;
  return key == Key::pageForward || key == Key::pageBack ||
         (key == Key::back && engine_->canGo(HistoryStep::back));
}

bool EmbeddedPage::use(Key key) {
  if (!wouldUse(key)) return false;
  const auto step = key == Key::pageForward ? HistoryStep::forward : HistoryStep::back;
  const auto goes = [this, step] { engine_->go(step); };
  key == Key::back ? expectAnswer(goes) : goes();  // a page that hangs does not go back
  return true;
}

// Swipes.

HistoryStep EmbeddedPage::stepOf(SwipeDirection direction) const {
  const bool back = (direction == SwipeDirection::right) != owner_.isRightToLeft();
  return back ? HistoryStep::back : HistoryStep::forward;
}

bool EmbeddedPage::leadsSomewhere(SwipeDirection direction) const {
  return content_->settings.allowsBackForwardNavigationGestures &&
         engine_->canGo(stepOf(direction));
}

void EmbeddedPage::go(SwipeDirection direction) {
  if (leadsSomewhere(direction)) engine_->go(stepOf(direction));
}

bool EmbeddedPage::swipes(const TouchEvent& event) {
  const auto swipe = edgeSwipe_.follow(event);
  if (!swipe || !leadsSomewhere(swipe->direction)) return false;
  const bool ends = event.phase == PointerEvent::Phase::released;
  if (ends && swipe->isFar) go(swipe->direction);
  return true;
}

bool EmbeddedPage::touched(const TouchEvent& event) {
  if (event.phase == PointerEvent::Phase::pressed) hasFingers_ = false;
  if (swipes(event)) hasFingers_ = true;
  if (hasFingers_) gesture_.forget();  // the page did not get it
  return hasFingers_;
}

void EmbeddedPage::scrolled(const TrackpadEvent& event) {
  if (event.begins) askedFor_.reset();  // the page that was asked may be gone
  const auto direction = trackpadSwipe_.follow(event);
  if (!direction || askedFor_ || !leadsSomewhere(*direction)) return;
  askedFor_ = direction;
  engine_->ask(PageScripts::scrollSince(trackpadSwipe_.began()));
}

// All pages.

PagePlace PagePlace::of(const render::EmbedItem& embed, const render::Scene& panel, double scale,
                        bool clips) {
  const layout::Rect room = embed.room();
  const layout::PixelGrid grid(scale);
  const double top = grid.ceil(room.top());
  PagePlace place{{{room.left(), top}, {room.size.width, std::max(0.0, room.bottom() - top)}}};
  if (!clips) return place;
  place.radius = std::min(room.top() - embed.frame.top(), SheetGeometry::cornerRadius);
  if (place.radius <= 0) return place;
  place.strip = top - (room.top() - place.radius);
  const double slack = grid.pixel() / 2;  // for rounding noise; both are on whole pixels
  place.isAtTop = room.top() - place.radius < slack && room.left() < slack &&
                  room.right() > panel.size.width - slack && embed.background.alpha == 255;
  return place;
}

bool EmbeddedPages::hasPages(const render::Scene& scene) {
  return std::any_of(scene.items.begin(), scene.items.end(), pageOf);
}

bool EmbeddedPages::follow(const render::Scene& scene) {
  std::vector<std::unique_ptr<EmbeddedPage>> now;
  bool all = true;
  for (const render::Item& item : scene.items) {
    const WebContent* content = pageOf(item);
    if (!content) continue;
    const auto known = std::find_if(pages_.begin(), pages_.end(), [&](const auto& page) {
      return page && page->content() == content;
    });
    auto page = known != pages_.end()
                    ? std::move(*known)
                    : EmbeddedPage::open(std::get<render::EmbedItem>(item), owner_);
    all = all && page;
    if (page) now.push_back(std::move(page));
  }
  pages_ = std::move(now);
  return all;
}

void EmbeddedPages::place(const render::Scene& panel, double scale, bool clips,
                          const std::function<void(PageEngine&, const PagePlace&)>& at) const {
  for (const auto& page : pages_) {
    if (!page->engine().isShown()) continue;
    for (const render::Item& item : panel.items) {
      if (pageOf(item) != page->content()) continue;
      at(page->engine(), PagePlace::of(std::get<render::EmbedItem>(item), panel, scale, clips));
      break;
    }
  }
}

void EmbeddedPages::sendOutside(const render::Scene& scene) {
  for (const render::Item& item : scene.items) {
    const WebContent* content = pageOf(item);
    if (content && content->url()) uikit::URLOpener::openOutside(*content->url());
  }
}

bool EmbeddedPages::use(Key key) {
  return std::ranges::any_of(pages_, [&](const auto& page) { return page->use(key); });
}

bool EmbeddedPages::wouldUse(Key key) const {
  return std::ranges::any_of(pages_, [&](const auto& page) { return page->wouldUse(key); });
}

std::vector<PageEngine*> EmbeddedPages::shown() const {
  std::vector<PageEngine*> all;
  for (const auto& page : pages_) {
    if (page->engine().isShown()) all.push_back(&page->engine());
  }
  return all;
}

}  // namespace quorix::hosting
