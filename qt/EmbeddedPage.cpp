#include "qt/EmbeddedPage.h"

#include <QKeyEvent>
#include <algorithm>
#include <chrono>
#include <limits>
#include <utility>

#include "qt/QtColor.h"
#include "qt/WebComponent.h"
#include "qt/WebComponentLoader.h"
#include "qt/WebLog.h"

namespace quorix::qt {
namespace {

using webkit::WebContent;

/// A page that has not answered by then hangs. With the sheet's fall, closing takes under a second.
constexpr std::chrono::milliseconds patience{400};

QUrl toQUrl(const foundation::URL& url) {
  return QUrl::fromEncoded(QByteArray::fromStdString(url.absoluteString()), QUrl::StrictMode);
}

int toMilliseconds(foundation::URLRequest::Seconds seconds) {
  constexpr double longest = std::numeric_limits<int>::max();
  return static_cast<int>(std::clamp(seconds.count() * 1000, 0.0, longest));
}

/// For the log: the query may name the shopper.
QByteArray named(const WebContent& content) {
  const auto url = content.url();
  return url ? toQUrl(*url).toDisplayString(QUrl::RemoveQuery).toUtf8() : QByteArray();
}

}  // namespace

std::unique_ptr<EmbeddedPage> EmbeddedPage::open(const QString& name,
                                                 const render::EmbedItem& embed, QObject& place,
                                                 Owner& owner) {
  auto content = std::dynamic_pointer_cast<WebContent>(embed.content);
  WebComponent* component = content ? WebComponentLoader::load(name) : nullptr;
  if (!component) return nullptr;
  std::unique_ptr<EmbeddedPage> page(new EmbeddedPage(content, owner));
  page->page_ = component->open(place, {content->settings, toQColor(embed.background)}, *page);
  if (!page->page_) return nullptr;
  content->attach([made = page.get()](const auto& request) { made->load(request); });
  return page;
}

EmbeddedPage::EmbeddedPage(std::shared_ptr<WebContent> content, Owner& owner)
    : content_(std::move(content)), owner_(owner) {
  for (QTimer* timer : {&standstill_, &silence_}) timer->setSingleShot(true);
  QObject::connect(&standstill_, &QTimer::timeout, [this] { loadTimedOut(); });
  standstill_.setInterval(toMilliseconds(foundation::URLRequest::defaultTimeout));
  silence_.setInterval(patience);
  QObject::connect(&silence_, &QTimer::timeout, [this] { owner_.pageHangs(); });
}

EmbeddedPage::~EmbeddedPage() {
  if (page_) content_->detach();
}

// Loading.

void EmbeddedPage::load(const foundation::URLRequest& request) {
  standstill_.setInterval(toMilliseconds(request.timeoutInterval));
  page_->load(toQUrl(request.url));
}

void EmbeddedPage::loading(int percent) {
  came_ = percent > 0;
  standstill_.start();
}

void EmbeddedPage::loadTimedOut() {
  qCWarning(webLog, "%s was not loaded: nothing came for %d ms", named(*content_).constData(),
            standstill_.interval());
  page_->stop();
  if (!came_) loadFailed();
}

void EmbeddedPage::loadFailed() {
  later([this, kept = content_] {
    owner_.pageEnded();
    kept->loadFailed();
  });
}

// What the page asks, and how it ends.

void EmbeddedPage::later(std::function<void()> work) {
  QMetaObject::invokeMethod(&silence_, std::move(work), Qt::QueuedConnection);
}

void EmbeddedPage::windowAsked(const QUrl& address, bool byUser) {
  const auto url =
      address.isEmpty() ? std::nullopt : foundation::URL::parse(address.toEncoded().toStdString());
  // Not within the engine's own call: who is asked may do anything.
  later([kept = content_, url, byUser] { kept->askForWindow(url, byUser); });
}

void EmbeddedPage::processEnded() {
  qCWarning(webLog, "%s ended: its process crashed or was killed", named(*content_).constData());
  standstill_.stop();
  silence_.stop();
  later([this, kept = content_] {
    owner_.pageEnded();
    kept->processEnded();
  });
}

// Keys.

/// Asks the page whether it is alive, and does `then` when it is.
void EmbeddedPage::expectAnswer(std::function<void()> then) {
  onAnswer_ = std::move(then);
  if (!silence_.isActive()) silence_.start();
  page_->ask();
}

void EmbeddedPage::answered() {
  silence_.stop();
  if (const auto then = std::exchange(onAnswer_, {})) then();
}

bool EmbeddedPage::takes(const QKeyEvent& event, bool tries) {
  if (!content_->settings.allowsBackForwardNavigationGestures) return false;
  const bool alt = event.modifiers() == Qt::AltModifier;
  const int key = event.key();
  const bool forward = key == Qt::Key_Forward || (alt && key == Qt::Key_Right);
  const bool back = key == Qt::Key_Back || (alt && key == Qt::Key_Left);
  // A phone's Back key closes the sheet where there is no way back.
  if (!(forward || back) || (key == Qt::Key_Back && !page_->canGoBack())) return false;
  if (tries) return true;
  if (forward) {
    page_->goForward();
  } else if (key == Qt::Key_Back) {
    expectAnswer([this] { page_->goBack(); });  // a page that hangs goes nowhere
  } else {
    page_->goBack();
  }
  return true;
}

}  // namespace quorix::qt
