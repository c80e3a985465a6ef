#pragma once

#include <functional>
#include <optional>

#include "platform/foundation/Export.h"
#include "platform/foundation/URL.h"
#include "platform/render/Embed.h"

namespace quorix::webkit {

/// A web page as an engine shows it: what to load and how, and what the page asks of the app. The
/// web view of the imperative toolkit owns it; the surface that shows it attaches an engine, which
/// may come after the first load and go before the page does. Main thread.
class QUORIX_EXPORT WebContent final : public render::Embed {
 public:
  struct Settings {
    bool allowsContentJavaScript = true;
    /// Scripts may ask for windows without the user's gesture.
    bool javaScriptCanOpenWindowsAutomatically = false;
    bool allowsBackForwardNavigationGestures = false;
  };
  Settings settings;

  /// The page, or a script on it, asks for a new window with this address (absent: with none).
  std::function<void(const std::optional<foundation::URL>&)> onNewWindow;

  /// Loads `url`: now when an engine is attached, otherwise when one is.
  void load(foundation::URL url) {
    url_ = std::move(url);
    if (loader_) loader_(*url_);
  }
  /// The address of the latest load.
  const std::optional<foundation::URL>& url() const { return url_; }

  /// For engines: `loader` performs the latest load, if there was one, and every later one.
  void attach(std::function<void(const foundation::URL&)> loader) {
    loader_ = std::move(loader);
    if (loader_ && url_) loader_(*url_);
  }
  void detach() { loader_ = nullptr; }

 private:
  std::optional<foundation::URL> url_;
  std::function<void(const foundation::URL&)> loader_;
};

}  // namespace quorix::webkit
