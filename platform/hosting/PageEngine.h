#pragma once

#include <chrono>
#include <string_view>

#include "platform/foundation/Export.h"
#include "platform/foundation/URL.h"
#include "platform/hosting/Input.h"

namespace quorix::hosting {

/// A live web page that the toolkit's web engine shows. Destroying it takes it off the screen and
/// ends its load. Main thread.
class QUORIX_EXPORT PageEngine {
 public:
  /// Told of the page, often within the engine's own call: do not destroy the page in it.
  class Client {
   public:
    /// The page asks for a new window with this address, which may be empty, or for an address
    /// that no page may load. It gets neither. `byUser`: the user's gesture caused it.
    virtual void windowAsked(std::string_view address, bool byUser) = 0;
    /// A load began (0) or moved on. It is above 0 once something of the page has come.
    virtual void loading(int percent) = 0;
    virtual void loadEnded() = 0;
    /// A load failed before anything of it came.
    virtual void loadFailed() = 0;
    /// The page's process crashed or was killed.
    virtual void processEnded() = 0;
    /// The page is about to get a key that closes a sheet. It returns the key if it does not use
    /// it.
    virtual void closingKeyGiven() = 0;
    /// The answer to `ask`.
    virtual void answered() = 0;
    /// Fingers touch the page. True from when the page must not get them any more.
    virtual bool touched(const TouchEvent& event) = 0;
    virtual void scrolled(const TrackpadEvent& event) = 0;
    /// The answer to `askForScroll`.
    virtual void scrollAnswered(bool used) = 0;

   protected:
    ~Client() = default;
  };

  virtual ~PageEngine() = default;

  /// False once the toolkit deleted the page's view.
  virtual bool isShown() const = 0;
  virtual void load(const foundation::URL& address) = 0;
  /// Stops a load that did not move on for `limit`.
  virtual void stopLoad(std::chrono::milliseconds limit) = 0;
  /// Asks the page's process whether it is alive. A page that hangs never answers.
  virtual void ask() = 0;
  /// Asks whether the page used any of the sideways scrolling since `time`, a
  /// `TrackpadEvent::time`: it scrolled, or a script took the scrolling. A page that hangs never
  /// answers.
  virtual void askForScroll(double time) = 0;
  virtual bool canGoBack() const = 0;
  virtual bool canGoForward() const = 0;
  virtual void goBack() = 0;
  virtual void goForward() = 0;
};

}  // namespace quorix::hosting
