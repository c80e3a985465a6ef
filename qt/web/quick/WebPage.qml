import QtQuick
import QtWebEngine

// A page that stands in an app: it shows itself and nothing else. `page` is a QuickPage.
WebEngineView {
    required property QtObject page

    backgroundColor: page.background
    settings {
        javascriptEnabled: page.allowsScripts
        javascriptCanOpenWindows: page.opensWindowsUnasked
        errorPageEnabled: false // the background shows instead
        focusOnNavigationEnabled: false
        fullScreenSupportEnabled: false
        pluginsEnabled: false
        screenCaptureEnabled: false
        unknownUrlSchemePolicy: WebEngineSettings.DisallowUnknownUrlSchemes
    }

    onNewWindowRequested: request => page.windowAsked(request.requestedUrl)
    onLoadingChanged: info => {
        if (info.status === WebEngineView.LoadFailedStatus) page.loadFailed(info.url, info.errorString);
    }
    onNavigationRequested: request => {
        if (!page.mayNavigateTo(request.url)) request.reject();
    }

    onAuthenticationDialogRequested: request => {
        request.accepted = true;
        request.dialogReject();
    }
    onContextMenuRequested: request => request.accepted = true
    onFeaturePermissionRequested: (origin, feature) => grantFeaturePermission(origin, feature, false)
    onFileDialogRequested: request => {
        request.accepted = true;
        request.dialogReject();
    }
    onJavaScriptDialogRequested: request => {
        request.accepted = true;
        request.dialogReject();
    }
    onQuotaRequested: request => request.reject()
    onRegisterProtocolHandlerRequested: request => request.reject()
    onTooltipRequested: request => request.accepted = true
}
