import QtQuick
import QtWebEngine
import Quorix.Web

// A page inside an app. All that a browser would ask its user for is refused without a dialog or a word
// on the log. `page` is a QuickPage. The page of Qt Widgets is QuietPage in WidgetPage.cpp; both keep
// to one table of requests, tests/web/PageRequestsTest.cpp.
WebEngineView {
    id: view

    required property QtObject page
    required property var scripts // to run beside the page's own
    required property bool allowsScripts
    required property bool opensWindowsUnasked
    // The upper part of the page, which is cut to a sheet's rounded corners.
    property real topHeight: 0
    property real topRadius: 0
    property real pixelRatio: 1

    function ask(script: string) {
        runJavaScript(script, WebEngineScript.ApplicationWorld, answer => page.answer(answer ?? ""));
    }

    function refuse(request) {
        request.accepted = true;
        request.dialogReject();
    }

    // With a rounded top the page is drawn as a picture, which is cut.
    layer {
        enabled: view.topHeight > 0
        effect: RoundedTopItem {
            pixelRatio: view.pixelRatio
            radius: view.topRadius
        }
    }
    Rectangle { // shows until the page has painted
        color: view.backgroundColor
        height: view.topHeight
        width: view.width
        z: -1
    }

    settings {
        allowWindowActivationFromJavaScript: false
        javascriptCanAccessClipboard: false
        javascriptCanOpenWindows: view.opensWindowsUnasked
        javascriptCanPaste: false
        javascriptEnabled: view.allowsScripts
        errorPageEnabled: false // the background shows instead
        focusOnNavigationEnabled: false
        fullScreenSupportEnabled: false
        navigateOnDropEnabled: false
        pluginsEnabled: false
        screenCaptureEnabled: false
        unknownUrlSchemePolicy: WebEngineSettings.AllowAllUnknownUrlSchemes // see onNavigationRequested
    }

    Component.onCompleted: userScripts.insert(scripts)

    onLoadProgressChanged: if (loading) page.loadMoved(loadProgress)
    onLoadingChanged: info => page.loadChanged(info.status, info.url, info.errorString, info.errorCode)
    onNavigationRequested: request => {
        if (!page.mayNavigate(request.url, request.isMainFrame)) request.reject();
    }
    onNewWindowRequested: request => page.askForWindow(request.requestedUrl, request.userInitiated)
    onRenderProcessTerminated: page.processEnded()

    onAuthenticationDialogRequested: request => refuse(request)
    onCertificateError: error => error.rejectCertificate()
    onColorDialogRequested: request => refuse(request)
    onContextMenuRequested: request => request.accepted = true
    onFileDialogRequested: request => refuse(request)
    onFileSystemAccessRequested: request => request.reject()
    onFullScreenRequested: request => request.reject()
    onJavaScriptConsoleMessage: {} // a handler keeps the page's words off the host's log
    onJavaScriptDialogRequested: request => refuse(request)
    onQuotaRequested: request => request.reject()
    onRegisterProtocolHandlerRequested: request => request.reject()
    onSelectClientCertificate: selection => selection.selectNone()
    onTooltipRequested: request => request.accepted = true
    onTouchSelectionMenuRequested: request => request.accepted = true

    // Signals that not every version of the engine has.
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
