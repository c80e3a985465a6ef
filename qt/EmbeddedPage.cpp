#include "qt/EmbeddedPage.h"

#include <QKeyEvent>
#include <utility>

#include "qt/QtColor.h"
#include "qt/WebComponent.h"
#include "qt/WebComponentLoader.h"

namespace quorix::qt {
namespace {

using webkit::WebContent;

QUrl toQUrl(const foundation::URL& url) {
  return QUrl::fromEncoded(QByteArray::fromStdString(url.absoluteString()), QUrl::StrictMode);
}

void passOn(const WebContent& content, const QUrl& asked) {
  const auto answer = content.onNewWindow;  // which may let go of the content
  if (!answer) return;
  answer(asked.isEmpty() ? std::nullopt : foundation::URL::parse(asked.toEncoded().toStdString()));
}

}  // namespace

std::unique_ptr<EmbeddedPage> EmbeddedPage::open(const QString& name,
                                                 const render::EmbedItem& embed, QObject& place) {
  auto content = std::dynamic_pointer_cast<WebContent>(embed.content);
  WebComponent* component = content ? WebComponentLoader::load(name) : nullptr;
  if (!component) return nullptr;
  WebPage::Options options;
  options.settings = content->settings;
  options.background = toQColor(embed.background);
  options.onNewWindow = [asked = std::weak_ptr(content)](const QUrl& address) {
    if (const auto alive = asked.lock()) passOn(*alive, address);
  };
  auto page = component->open(place, std::move(options));
  if (!page) return nullptr;
  return std::unique_ptr<EmbeddedPage>(new EmbeddedPage(std::move(content), std::move(page)));
}

EmbeddedPage::EmbeddedPage(std::shared_ptr<WebContent> content, std::unique_ptr<WebPage> page)
    : content_(std::move(content)), page_(std::move(page)) {
  content_->attach([this](const foundation::URL& url) { page_->load(toQUrl(url)); });
}

EmbeddedPage::~EmbeddedPage() { content_->detach(); }

bool EmbeddedPage::takes(const QKeyEvent& event, bool tries) {
  if (!content_->settings.allowsBackForwardNavigationGestures) return false;
  const bool alt = event.modifiers() == Qt::AltModifier;
  const int key = event.key();
  const bool forward = key == Qt::Key_Forward || (alt && key == Qt::Key_Right);
  const bool back = key == Qt::Key_Back || (alt && key == Qt::Key_Left);
  // A phone's Back key closes the sheet where there is no way back.
  if (!(forward || back) || (key == Qt::Key_Back && !page_->canGoBack())) return false;
  if (tries) return true;
  forward ? page_->goForward() : page_->goBack();
  return true;
}

}  // namespace quorix::qt
