#pragma once

#include <memory>

#include "platform/hosting/PageEngine.h"
#include "platform/render/Scene.h"
#include "qt/WebPage.h"

namespace quorix::qt {

/// A page of a toolkit's web component, as a sheet drives it. Main thread.
class EnginePage final : public hosting::PageEngine, private WebPage::Client {
 public:
  /// Opens the page with the component `name`; null where that is not to be had, or cannot show
  /// one. Its view is made a child of `place`.
  static std::unique_ptr<EnginePage> open(const QString& name, const render::EmbedItem& embed,
                                          QObject& place, hosting::PageEngine::Client& client);

  QObject* view() const { return page_->view(); }

  bool isShown() const override { return view() != nullptr; }
  void load(const foundation::URL& address) override;
  void stopLoad(std::chrono::milliseconds limit) override;
  void ask() override { page_->ask(); }
  bool canGoBack() const override { return page_->canGoBack(); }
  void goBack() override { page_->goBack(); }
  void goForward() override { page_->goForward(); }

 private:
  explicit EnginePage(hosting::PageEngine::Client& client) : client_(client) {}

  void windowAsked(const QUrl& address, bool byUser) override;
  void loading(int percent) override { client_.loading(percent); }
  void loadEnded() override { client_.loadEnded(); }
  void loadFailed() override { client_.loadFailed(); }
  void processEnded() override;
  void closingKeyGiven() override { client_.closingKeyGiven(); }
  void answered() override { client_.answered(); }

  hosting::PageEngine::Client& client_;
  QString name_;  ///< for the log: without the query, which may name the shopper
  std::unique_ptr<WebPage> page_;
};

}  // namespace quorix::qt
