#pragma once

#include <functional>
#include <optional>
#include <utility>

#include "platform/foundation/Action.h"
#include "platform/foundation/Export.h"
#include "platform/foundation/URL.h"
#include "platform/render/Scene.h"
#include "platform/webkit/PageRules.h"

namespace quorix::webkit {

/// A web page for a web engine: its address, its settings, and its requests to the app. `WKWebView`
/// owns it. The surface attaches an engine, which may start after the first load and end before the
/// page. Main thread.
///
///     // On a surface without an engine, the page opens outside the app.
///     #include <platform/uikit/URLOpener.h>
///     void leave(const render::Embed& content) {
///       const auto* page = dynamic_cast<const WebContent*>(&content);
///       if (page && page->url()) uikit::URLOpener::openOutside(*page->url());
///     }
class QUORIX_EXPORT WebContent final : public render::Embed {
 public:
  struct Settings {
    bool allowsContentJavaScript = true;
    /// Whether scripts may ask for windows without a user gesture.
    bool javaScriptCanOpenWindowsAutomatically = false;
    bool allowsBackForwardNavigationGestures = false;
  };
  Settings settings;

  /// Called if the page, or a script on it, asks for a new window with this address (may be
  /// absent), or for an address that no page can show, and `NewWindowLimit` allows it.
  std::function<void(const std::optional<foundation::URL>&)> onNewWindow;
  /// Called when the engine's process for this page crashed or was killed.
  foundation::Action onProcessEnded;
  /// Called when a load failed before any data arrived: no network, an unknown host, a server that
  /// is not trusted or does not answer.
  foundation::Action onLoadFailed;

  /// Loads `request` at once, or as soon as an engine is attached. The engine stops the load if no
  /// byte arrives for the request's `timeoutInterval`.
  void load(foundation::URLRequest request) {
    request_ = std::move(request);
    if (loader_) loader_(*request_);
  }
  /// The latest load.
  const std::optional<foundation::URLRequest>& request() const { return request_; }
  std::optional<foundation::URL> url() const {
    return request_ ? std::optional(request_->url) : std::nullopt;
  }

  /// For engines: `loader` is called with the latest load, if there was one, and with every later
  /// one.
  void attach(std::function<void(const foundation::URLRequest&)> loader) {
    loader_ = std::move(loader);
    if (loader_ && request_) loader_(*request_);
  }
  void detach() { loader_ = nullptr; }

  /// For engines: the page asks for a new window, or for an address that it may not load (mail,
  /// phone, another app). `byUser`: a user gesture caused it. May delete this object.
  void askForWindow(const std::optional<foundation::URL>& url, bool byUser) {
    if (url && !limit_.allows(*url, byUser, NewWindowLimit::Clock::now())) return;
    const auto answer = onNewWindow;
    if (answer) answer(url);
  }
  /// For engines: the page's process ended. May delete this object.
  void processEnded() {
    if (onProcessEnded) onProcessEnded();
  }
  /// For engines: a load failed. May delete this object.
  void loadFailed() {
    if (onLoadFailed) onLoadFailed();
  }

 private:
  std::optional<foundation::URLRequest> request_;
  std::function<void(const foundation::URLRequest&)> loader_;
  NewWindowLimit limit_;
};

}  // namespace quorix::webkit
