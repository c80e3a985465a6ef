import QtQuick
import QtWebEngine
import Quorix.Web

// A page inside an app. All that a browser would ask its user for is refused without a dialog or a word
// on the log. `page` is a QuickPage. The widgets' page is QuietPage; both keep to one table of
// requests, tests/web/PageRequestsTest.cpp.
WebEngineView {
    id: view

    required property QtObject page

    // Tells the page's client that the page's process answers.
    function ask() {
        runJavaScript("0", () => page.answered());
    }

    // Asks the page's scroll notes. If they do not know, the page counts as having used the scrolling.
    function askForScroll(question: string) {
        runJavaScript(question, WebEngineScript.ApplicationWorld, used => page.scrollAnswered(used !== false));
    }

    // In a sheet with rounded corners the page is drawn as a picture, which is cut to them.
    layer {
        enabled: page.topHeight > 0
        effect: RoundedTop {
            pixelRatio: view.page.pixelRatio
            radius: view.page.topRadius
        }
    }
    Rectangle { // shows until the page has painted
        color: view.page.background
        height: view.page.topHeight
        width: view.width
        z: -1
    }

    backgroundColor: page.background
    settings {
        allowWindowActivationFromJavaScript: false
        javascriptCanAccessClipboard: false
        javascriptCanOpenWindows: page.opensWindowsUnasked
        javascriptCanPaste: false
        javascriptEnabled: page.allowsScripts
        errorPageEnabled: false // the background shows instead
        focusOnNavigationEnabled: false
        fullScreenSupportEnabled: false
        navigateOnDropEnabled: false
        pluginsEnabled: false
        screenCaptureEnabled: false
        unknownUrlSchemePolicy: WebEngineSettings.AllowAllUnknownUrlSchemes // so that we are asked
    }

    Component.onCompleted: userScripts.insert([page.refusals, page.scrollNotes])

    onLoadProgressChanged: if (loading) page.loading(loadProgress)
    onLoadingChanged: info => {
        if (info.status === WebEngineView.LoadStartedStatus) page.loading(0);
        else page.loadEnded();
        if (info.status === WebEngineView.LoadFailedStatus) {
            page.loadFailed(info.url, info.errorString, info.errorCode);
        }
    }
    onNavigationRequested: request => {
        if (!page.mayNavigate(request.url, request.isMainFrame)) request.reject();
    }
    onNewWindowRequested: request => page.windowAsked(request.requestedUrl, request.userInitiated)
    onRenderProcessTerminated: page.processEnded()

    onAuthenticationDialogRequested: request => {
        request.accepted = true;
        request.dialogReject();
    }
    onCertificateError: error => error.rejectCertificate()
    onColorDialogRequested: request => {
        request.accepted = true;
        request.dialogReject();
    }
    onContextMenuRequested: request => request.accepted = true
    onFileDialogRequested: request => {
        request.accepted = true;
        request.dialogReject();
    }
    onFileSystemAccessRequested: request => request.reject()
    onFullScreenRequested: request => request.reject()
    onJavaScriptConsoleMessage: {} // a handler keeps the page's words off the host's log
    onJavaScriptDialogRequested: request => {
        request.accepted = true;
        request.dialogReject();
    }
    onQuotaRequested: request => request.reject()
    onRegisterProtocolHandlerRequested: request => request.reject()
    onSelectClientCertificate: selection => selection.selectNone()
    onTooltipRequested: request => request.accepted = true
    onTouchSelectionMenuRequested: request => request.accepted = true

    // What not every version of the engine asks for.
    Connections {
        target: view
        ignoreUnknownSignals: true

        function onDesktopMediaRequested(request) { request.cancel(); } // 6.7
        function onFeaturePermissionRequested(origin, feature) { // until 6.8
            view.grantFeaturePermission(origin, feature, false);
        }
        function onPermissionRequested(permission) { permission.deny(); } // 6.8
        function onWebAuthUxRequested(request) { request.cancel(); } // 6.7
    }
}
