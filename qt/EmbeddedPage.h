#pragma once

#include <QTimer>
#include <functional>
#include <memory>

#include "platform/foundation/Export.h"
#include "platform/render/Scene.h"
#include "qt/WebPage.h"

class QKeyEvent;

namespace quorix::qt {

/// The web content of an embed, on show in a window of some toolkit: what the content loads is
/// loaded, what the page asks for is passed on to it. A load that stands still for the request's
/// time-out is stopped. Main thread.
class EmbeddedPage final : private WebPage::Client {
 public:
  /// What shows the page. Both are called outside the engine's own calls.
  class Owner {
   public:
    /// A key that closes was left to a page that hangs.
    virtual void pageHangs() = 0;
    /// The page shows nothing any more, and takes no keys.
    virtual void pageEnded() = 0;

   protected:
    ~Owner() = default;
  };

  /// Opens the page with the component `name`; null where that is not to be had, or where the embed
  /// holds no web content. `owner` outlives the page.
  static std::unique_ptr<EmbeddedPage> open(const QString& name, const render::EmbedItem& embed,
                                            QObject& place, Owner& owner);
  QUORIX_EXPORT ~EmbeddedPage();
  EmbeddedPage(const EmbeddedPage&) = delete;
  EmbeddedPage& operator=(const EmbeddedPage&) = delete;

  const render::Embed* content() const { return content_.get(); }
  QObject* view() const { return page_->view(); }

  /// Takes a key that the page left over: the ones that lead back and forward. False when this is
  /// none, or leads nowhere. `tries` only asks.
  bool takes(const QKeyEvent& event, bool tries = false);

 private:
  EmbeddedPage(std::shared_ptr<webkit::WebContent> content, Owner& owner);

  void load(const foundation::URLRequest& request);
  void loadTimedOut();
  void expectAnswer(std::function<void()> then);
  void later(std::function<void()> work);

  void windowAsked(const QUrl& address, bool byUser) override;
  void loading(int percent) override;
  void loadEnded() override { standstill_.stop(); }
  void loadFailed() override;
  void processEnded() override;
  void closingKeyGiven() override { expectAnswer({}); }
  void answered() override;

  std::shared_ptr<webkit::WebContent> content_;
  Owner& owner_;
  QTimer standstill_;  ///< since the load last moved on
  bool came_ = false;  ///< something of the load
  QTimer silence_;     ///< since the page was asked
  std::function<void()> onAnswer_;
  std::unique_ptr<WebPage> page_;
};

}  // namespace quorix::qt
