#pragma once

#include <QQmlComponent>
#include <QQmlEngine>
#include <memory>

#include "qt/WebComponent.h"

class QQuickWebEngineProfile;

namespace quorix::qt {

/// Pages for Qt Quick windows, all in one profile off the record. Lives as long as the application.
class QuickWebComponent final : public WebComponent {
 public:
  QuickWebComponent();
  ~QuickWebComponent();

  std::unique_ptr<WebPage> open(QObject& place, const WebPage::Options& options,
                                WebPage::Client& client) override;

 private:
  std::unique_ptr<QQuickWebEngineProfile> profile_;
  QQmlEngine engine_;
  std::unique_ptr<QQmlComponent> source_;
};

}  // namespace quorix::qt
