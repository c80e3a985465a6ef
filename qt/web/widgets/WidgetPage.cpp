#include <QAuthenticator>
#include <QChildEvent>
#include <QDialog>
#include <QPointer>
#include <QWebEngineCertificateError>
#include <QWebEngineClientCertificateSelection>
#include <QWebEngineFileSystemAccessRequest>
#include <QWebEngineFullScreenRequest>
#include <QWebEngineHistory>
#include <QWebEngineLoadingInfo>
#include <QWebEngineNewWindowRequest>
#include <QWebEnginePage>
#include <QWebEngineProfile>
#include <QWebEngineRegisterProtocolHandlerRequest>
#include <QWebEngineScriptCollection>
#include <QWebEngineSettings>
#include <QWebEngineView>
#include <QWindow>

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

#include "qt/ApplicationLifetime.h"
#include "qt/web/WebPageBase.h"

namespace quorix::qt {
namespace {

/// What all pages in windows of widgets share. Lives as long as the application.
struct WidgetEngine {
  WidgetEngine() { WebPageBase::openToReaders(); }

  QWebEngineProfile profile;  // off the record
};

/// A page inside an app. All that a browser would ask its user for is refused without a dialog or a
/// word on the log. The Qt Quick page is WebPage.qml; one table in
/// tests/web/PageRequestsTest.cpp tests both.
class QuietPage final : public QWebEnginePage {
 public:
  QuietPage(WidgetEngine& engine, const WebPage::Options& options, WebPageBase& page,
            QObject* parent)
      : QWebEnginePage(&engine.profile, parent), page_(page) {
    setBackgroundColor(options.background);
    settle(options.settings);
    scripts().insert(WebPageBase::scripts());
    tell();
    refuseRequests();
    refusePermissions();
  }

 protected:
  bool acceptNavigationRequest(const QUrl& address, NavigationType, bool mainFrame) override {
    return page_.mayNavigate(address, mainFrame);
  }
  QStringList chooseFiles(FileSelectionMode, const QStringList&, const QStringList&) override {
    return {};
  }
  void javaScriptAlert(const QUrl&, const QString&) override {}
  bool javaScriptConfirm(const QUrl&, const QString&) override { return false; }
  bool javaScriptPrompt(const QUrl&, const QString&, const QString&, QString*) override {
    return false;
  }
  /// Discards the page's console output: a host's log belongs to the host.
  void javaScriptConsoleMessage(JavaScriptConsoleMessageLevel, const QString&, int,
                                const QString&) override {}

 private:
  void settle(const webkit::WebContent::Settings& asked) {
    using Settings = QWebEngineSettings;
    Settings& own = *settings();
    for (const auto off :
         {Settings::AllowWindowActivationFromJavaScript, Settings::ErrorPageEnabled,
          Settings::FocusOnNavigationEnabled, Settings::FullScreenSupportEnabled,
          Settings::JavascriptCanAccessClipboard, Settings::JavascriptCanPaste,
          Settings::NavigateOnDropEnabled, Settings::PluginsEnabled,
          Settings::ScreenCaptureEnabled}) {
      own.setAttribute(off, false);
    }
    own.setAttribute(Settings::JavascriptEnabled, asked.allowsContentJavaScript);
    own.setAttribute(Settings::JavascriptCanOpenWindows,
                     asked.javaScriptCanOpenWindowsAutomatically);
    // acceptNavigationRequest decides.
    own.setUnknownUrlSchemePolicy(Settings::AllowAllUnknownUrlSchemes);
  }

  void tell() {
    connect(this, &QWebEnginePage::loadProgress, &page_, [this](int percent) {
      if (isLoading()) page_.loadMoved(percent);
    });
    connect(this, &QWebEnginePage::loadingChanged, &page_,
            [this](const QWebEngineLoadingInfo& info) {
              page_.loadChanged(info.status(), info.url(), info.errorString(), info.errorCode());
            });
    connect(this, &QWebEnginePage::newWindowRequested, &page_,
            [this](const QWebEngineNewWindowRequest& request) {
              page_.askForWindow(request.requestedUrl(), request.isUserInitiated());
            });
    connect(this, &QWebEnginePage::renderProcessTerminated, &page_, &WebPageBase::processEnded);
  }

  void refuseRequests() {
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

  void refusePermissions() {
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

  WebPageBase& page_;
};

/// Keeps off the screen what the engine opens over a page: menus, tooltips and the color dialog,
/// which a page cannot refuse.
class QuietView final : public QWebEngineView {
 public:
  explicit QuietView(QWidget& parent) : QWebEngineView(&parent) {
    setContextMenuPolicy(Qt::NoContextMenu);
    setAcceptDrops(false);  // a page gets no files
  }

 protected:
  bool event(QEvent* event) override {
    return event->type() == QEvent::ToolTip || QWebEngineView::event(event);
  }

  /// The engine's dialogs are children of the view. Keeps them off the screen, native ones too, and
  /// rejects them on the next turn, when the engine waits for their end.
  void childEvent(QChildEvent* event) override {
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
};

/// A page in a window of widgets.
class WidgetPage final : public WebPageBase {
 public:
  WidgetPage(WidgetEngine& engine, QWidget& place, const Options& options, Client& client)
      : WebPageBase(client), view_(new QuietView(place)) {
    view_->setPage(new QuietPage(engine, options, *this, view_));
  }

  ~WidgetPage() override { delete view_; }

  QObject* view() const override { return view_; }

  void ask(std::string_view script) override {
    if (!view_) return;
    // The engine also calls back while the page is being deleted.
    const auto answered = [this, asked = view_](const QVariant& text) {
      if (asked) answer(text.toString());
    };
    view_->page()->runJavaScript(QString::fromUtf8(script), QWebEngineScript::ApplicationWorld,
                                 answered);
  }

  bool canGo(hosting::HistoryStep step) const override {
    if (!view_) return false;
    const QWebEngineHistory& history = *view_->history();
    return step == hosting::HistoryStep::back ? history.canGoBack() : history.canGoForward();
  }

  void go(hosting::HistoryStep step) override {
    if (!view_) return;
    step == hosting::HistoryStep::back ? view_->back() : view_->forward();
  }

 private:
  bool isForPage(const QObject& receiver) const override {
    if (!view_) return false;
    const auto* widget = qobject_cast<const QWidget*>(&receiver);
    if (widget) return view_->isAncestorOf(widget);
    const QWidget* focused = view_->window()->focusWidget();
    return focused && view_->isAncestorOf(focused) && view_->window()->windowHandle() == &receiver;
  }

  QPointer<QWebEngineView> view_;
};

}  // namespace
}  // namespace quorix::qt

extern "C" Q_DECL_EXPORT quorix::qt::WebPage* quorixOpenWebPage7(
    QObject& place, const quorix::qt::WebPage::Options& options,
    quorix::qt::WebPage::Client& client) {
  using namespace quorix::qt;
  auto* widget = qobject_cast<QWidget*>(&place);
  if (!widget || !WebPageBase::startEngine()) return nullptr;
  return new WidgetPage(applicationLifetime<WidgetEngine>(), *widget, options, client);
}
