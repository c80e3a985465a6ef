#include "qt/EnginePage.h"

#include "platform/webkit/WebContent.h"
#include "qt/QtColor.h"
#include "qt/WebComponent.h"
#include "qt/WebComponentLoader.h"
#include "qt/WebLog.h"

namespace quorix::qt {

std::unique_ptr<EnginePage> EnginePage::open(const QString& name, const render::EmbedItem& embed,
                                             QObject& place, hosting::PageEngine::Client& client) {
  const auto* content = dynamic_cast<const webkit::WebContent*>(embed.content.get());
  WebComponent* component = content ? WebComponentLoader::load(name) : nullptr;
  if (!component) return nullptr;
  std::unique_ptr<EnginePage> page(new EnginePage(client));
  page->page_ = component->open(place, {content->settings, toQColor(embed.background)}, *page);
  return page->page_ ? std::move(page) : nullptr;
}

void EnginePage::load(const foundation::URL& address) {
  const QUrl url =
      QUrl::fromEncoded(QByteArray::fromStdString(address.absoluteString()), QUrl::StrictMode);
  name_ = url.toDisplayString(QUrl::RemoveQuery);
  page_->load(url);
}

void EnginePage::stopLoad(std::chrono::milliseconds limit) {
  qCWarning(webLog, "%s was not loaded: nothing came for %d ms", qUtf8Printable(name_),
            static_cast<int>(limit.count()));
  page_->stop();
}

void EnginePage::windowAsked(const QUrl& address, bool byUser) {
  client_.windowAsked(
      address.isEmpty() ? std::nullopt : foundation::URL::parse(address.toEncoded().toStdString()),
      byUser);
}

void EnginePage::processEnded() {
  qCWarning(webLog, "%s ended: its process crashed or was killed", qUtf8Printable(name_));
  client_.processEnded();
}

}  // namespace quorix::qt
