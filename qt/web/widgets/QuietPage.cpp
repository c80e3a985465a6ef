#include "qt/web/widgets/QuietPage.h"

#include <QAuthenticator>
#include <QWebEngineLoadingInfo>
#include <QWebEngineNewWindowRequest>
#include <QWebEngineQuotaRequest>
#include <QWebEngineRegisterProtocolHandlerRequest>
#include <QWebEngineSettings>

#include "platform/webkit/NavigationRules.h"
#include "qt/WebLog.h"

namespace quorix::qt {

QuietPage::QuietPage(QWebEngineProfile& profile, WebPage::Options options, QObject* parent)
    : QWebEnginePage(&profile, parent), options_(std::move(options)) {
  setBackgroundColor(options_.background);
  settle(options_.settings);
  refuseRequests();
  connect(this, &QWebEnginePage::loadingChanged, this, [](const QWebEngineLoadingInfo& info) {
    if (info.status() != QWebEngineLoadingInfo::LoadFailedStatus) return;
    qCWarning(webLog, "%s was not loaded: %s",
              qUtf8Printable(info.url().toDisplayString(QUrl::RemoveQuery)),
              qUtf8Printable(info.errorString()));
  });
  connect(this, &QWebEnginePage::newWindowRequested, this,
          [this](const QWebEngineNewWindowRequest& request) {
            // Not within the engine's own call: who is asked may do anything.
            QMetaObject::invokeMethod(
                this, [this, address = request.requestedUrl()] { options_.onNewWindow(address); },
                Qt::QueuedConnection);
          });
}

void QuietPage::settle(const webkit::WebContent::Settings& asked) {
  using Settings = QWebEngineSettings;
  Settings& own = *settings();
  own.setAttribute(Settings::JavascriptEnabled, asked.allowsContentJavaScript);
  own.setAttribute(Settings::JavascriptCanOpenWindows, asked.javaScriptCanOpenWindowsAutomatically);
  for (const auto off : {Settings::ErrorPageEnabled, Settings::FocusOnNavigationEnabled,
                         Settings::FullScreenSupportEnabled, Settings::PluginsEnabled,
                         Settings::ScreenCaptureEnabled}) {
    own.setAttribute(off, false);
  }
  own.setUnknownUrlSchemePolicy(Settings::DisallowUnknownUrlSchemes);
}

void QuietPage::refuseRequests() {
  connect(this, &QWebEnginePage::featurePermissionRequested, this,
          [this](const QUrl& origin, Feature feature) {
            setFeaturePermission(origin, feature, PermissionDeniedByUser);
          });
  connect(this, &QWebEnginePage::quotaRequested, this,
          [](QWebEngineQuotaRequest request) { request.reject(); });
  connect(this, &QWebEnginePage::registerProtocolHandlerRequested, this,
          [](QWebEngineRegisterProtocolHandlerRequest request) { request.reject(); });
  const auto withoutName = [](auto&&, QAuthenticator* authenticator) { *authenticator = {}; };
  connect(this, &QWebEnginePage::authenticationRequired, this, withoutName);
}

bool QuietPage::mayNavigateTo(const QUrl& address) {
  return webkit::mayNavigateTo(address.scheme().toStdString());
}

bool QuietPage::acceptNavigationRequest(const QUrl& address, NavigationType, bool) {
  return mayNavigateTo(address);
}

}  // namespace quorix::qt
