#include "qt/web/widgets/QuietPage.h"

#include <QAuthenticator>
#include <QChildEvent>
#include <QDialog>
#include <QPointer>
#include <QWebEngineCertificateError>
#include <QWebEngineClientCertificateSelection>
#include <QWebEngineFileSystemAccessRequest>
#include <QWebEngineFullScreenRequest>
#include <QWebEngineLoadingInfo>
#include <QWebEngineNewWindowRequest>
#include <QWebEngineRegisterProtocolHandlerRequest>
#include <QWebEngineScriptCollection>
#include <QWebEngineSettings>

#if QT_VERSION < QT_VERSION_CHECK(6, 5, 0)
#include <QWebEngineQuotaRequest>
#endif

#if QT_VERSION >= QT_VERSION_CHECK(6, 7, 0)
#include <QWebEngineDesktopMediaRequest>
#include <QWebEngineWebAuthUxRequest>
#endif

#if QT_VERSION >= QT_VERSION_CHECK(6, 8, 0)
#include <QWebEnginePermission>
#endif

namespace quorix::qt {

QuietPage::QuietPage(QWebEngineProfile& profile, const WebPage::Options& options, WebPageBase& page,
                     QObject* parent)
    : QWebEnginePage(&profile, parent), page_(page) {
  setBackgroundColor(options.background);
  settle(options.settings);
  scripts().insert(WebPageBase::scripts());
  tell();
  refuseRequests();
  refusePermissions();
}

void QuietPage::settle(const webkit::WebContent::Settings& asked) {
  using Settings = QWebEngineSettings;
  Settings& own = *settings();
  own.setAttribute(Settings::JavascriptEnabled, asked.allowsContentJavaScript);
  own.setAttribute(Settings::JavascriptCanOpenWindows, asked.javaScriptCanOpenWindowsAutomatically);
  for (const auto off : {Settings::AllowWindowActivationFromJavaScript, Settings::ErrorPageEnabled,
                         Settings::FocusOnNavigationEnabled, Settings::FullScreenSupportEnabled,
                         Settings::JavascriptCanAccessClipboard, Settings::JavascriptCanPaste,
                         Settings::NavigateOnDropEnabled, Settings::PluginsEnabled,
                         Settings::ScreenCaptureEnabled}) {
    own.setAttribute(off, false);
  }
  own.setUnknownUrlSchemePolicy(
      Settings::AllowAllUnknownUrlSchemes);  // acceptNavigationRequest decides
}

void QuietPage::tell() {
  connect(this, &QWebEnginePage::loadProgress, &page_, [this](int percent) {
    if (isLoading()) page_.loadMoved(percent);
  });
  connect(this, &QWebEnginePage::loadingChanged, &page_, [this](const QWebEngineLoadingInfo& info) {
    page_.loadChanged(info.status(), info.url(), info.errorString(), info.errorCode());
  });
  connect(this, &QWebEnginePage::newWindowRequested, &page_,
          [this](const QWebEngineNewWindowRequest& request) {
            page_.askForWindow(request.requestedUrl(), request.isUserInitiated());
          });
  connect(this, &QWebEnginePage::renderProcessTerminated, &page_, &WebPageBase::processEnded);
}

void QuietPage::refuseRequests() {
  const auto reject = [](auto request) { request.reject(); };
  connect(this, &QWebEnginePage::fileSystemAccessRequested, this, reject);
  connect(this, &QWebEnginePage::fullScreenRequested, this, reject);
  connect(this, &QWebEnginePage::registerProtocolHandlerRequested, this, reject);
#if QT_VERSION < QT_VERSION_CHECK(6, 5, 0)  // later versions do not ask
  connect(this, &QWebEnginePage::quotaRequested, this, reject);
#endif
  connect(this, &QWebEnginePage::certificateError, this,
          [](QWebEngineCertificateError error) { error.rejectCertificate(); });
  connect(this, &QWebEnginePage::selectClientCertificate, this,
          [](QWebEngineClientCertificateSelection selection) { selection.selectNone(); });
  const auto withoutName = [](auto&&, QAuthenticator* authenticator) { *authenticator = {}; };
  connect(this, &QWebEnginePage::authenticationRequired, this, withoutName);
  connect(this, &QWebEnginePage::proxyAuthenticationRequired, this, withoutName);
#if QT_VERSION >= QT_VERSION_CHECK(6, 7, 0)
  connect(this, &QWebEnginePage::desktopMediaRequested, this,
          [](const QWebEngineDesktopMediaRequest& request) { request.cancel(); });
  connect(this, &QWebEnginePage::webAuthUxRequested, this,
          [](QWebEngineWebAuthUxRequest* request) { request->cancel(); });
#endif
}

void QuietPage::refusePermissions() {
#if QT_VERSION >= QT_VERSION_CHECK(6, 8, 0)
  connect(this, &QWebEnginePage::permissionRequested, this,
          [](const QWebEnginePermission& permission) { permission.deny(); });
#else
  connect(this, &QWebEnginePage::featurePermissionRequested, this,
          [this](const QUrl& origin, Feature feature) {
            setFeaturePermission(origin, feature, PermissionDeniedByUser);
          });
#endif
}

QuietView::QuietView(QWidget* parent) : QWebEngineView(parent) {
  setContextMenuPolicy(Qt::NoContextMenu);
  setAcceptDrops(false);  // a page gets no files
}

bool QuietView::event(QEvent* event) {
  if (event->type() == QEvent::ToolTip) return true;
  return QWebEngineView::event(event);
}

/// The engine's dialogs are children of the view. Keeps them off the screen, native ones too, and
/// rejects them on the next turn, when the engine waits for their end.
void QuietView::childEvent(QChildEvent* event) {
  QWebEngineView::childEvent(event);
  if (!event->added() || !event->child()->isWidgetType()) return;
  auto* widget = static_cast<QWidget*>(event->child());  // the derived part is not made yet
  if (widget->windowType() != Qt::Dialog) return;
  widget->setAttribute(Qt::WA_DontShowOnScreen);
  QMetaObject::invokeMethod(
      this,
      [shown = QPointer<QObject>(widget)] {
        if (auto* dialog = qobject_cast<QDialog*>(shown.data())) dialog->reject();
      },
      Qt::QueuedConnection);
}

}  // namespace quorix::qt
