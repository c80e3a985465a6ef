#pragma once

#include <memory>

#include "platform/foundation/Export.h"
#include "platform/render/Scene.h"
#include "qt/WebPage.h"

class QKeyEvent;

namespace quorix::qt {

/// The web content of an embed, on show in a window of some toolkit: what the content loads is
/// loaded, what the page asks for is passed on to it. Main thread.
class EmbeddedPage {
 public:
  /// Opens the page with the component `name`; null where that is not to be had, or where the embed
  /// holds no web content.
  static std::unique_ptr<EmbeddedPage> open(const QString& name, const render::EmbedItem& embed,
                                            QObject& place);
  QUORIX_EXPORT ~EmbeddedPage();
  EmbeddedPage(const EmbeddedPage&) = delete;
  EmbeddedPage& operator=(const EmbeddedPage&) = delete;

  const render::Embed* content() const { return content_.get(); }
  QObject* view() const { return page_->view(); }

  /// Takes a key that the page left over: the ones that lead back and forward. False when this is
  /// none, or leads nowhere. `tries` only asks.
  bool takes(const QKeyEvent& event, bool tries = false);

 private:
  EmbeddedPage(std::shared_ptr<webkit::WebContent> content, std::unique_ptr<WebPage> page);

  std::shared_ptr<webkit::WebContent> content_;
  std::unique_ptr<WebPage> page_;
};

}  // namespace quorix::qt
