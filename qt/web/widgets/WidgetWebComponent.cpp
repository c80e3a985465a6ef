#include <QWebEngineProfile>
#include <QWidget>
#include <memory>

#include "qt/ApplicationLifetime.h"
#include "qt/WebComponent.h"
#include "qt/web/WebEngine.h"
#include "qt/web/widgets/WidgetPage.h"

namespace quorix::qt {
namespace {

/// Pages for windows of widgets, all in one profile off the record. Lives as long as the
/// application.
class WidgetWebComponent final : public WebComponent {
 public:
  std::unique_ptr<WebPage> open(QObject& place, const WebPage::Options& options,
                                WebPage::Client& client) override {
    auto* widget = qobject_cast<QWidget*>(&place);
    if (!widget || !WebEngine::start()) return nullptr;
    if (!profile_) profile_ = std::make_unique<QWebEngineProfile>();  // off the record
    return std::make_unique<WidgetPage>(*profile_, *widget, options, client);
  }

 private:
  std::unique_ptr<QWebEngineProfile> profile_;
};

}  // namespace
}  // namespace quorix::qt

extern "C" Q_DECL_EXPORT quorix::qt::WebComponent* quorixWebComponent(int version) {
  using namespace quorix::qt;
  if (version != webComponentVersion) return nullptr;
  return &applicationLifetime<WidgetWebComponent>();
}
