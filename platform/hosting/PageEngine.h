#pragma once

#include <chrono>
#include <string_view>

#include "platform/foundation/Export.h"
#include "platform/foundation/URL.h"
#include "platform/hosting/Input.h"

namespace quorix::hosting {

/// A live web page that the toolkit's web engine shows. The destructor removes it from the screen
/// and stops its load. Main thread.
class QUORIX_EXPORT PageEngine {
 public:
  /// Receives the page's events, often inside a call of the engine: do not destroy the page in
  /// them.
  class Client {
   public:
    /// The page asked for a new window with this address, which may be empty, or for an address
    /// that no page may load. The engine refuses both. `byUser`: a user gesture caused it.
    virtual void windowAsked(std::string_view address, bool byUser) = 0;
    /// A load began (0) or progressed. Above 0, data of the page has arrived.
    virtual void loading(int percent) = 0;
    virtual void loadEnded() = 0;
    /// A load failed before any data arrived.
    virtual void loadFailed() = 0;
    /// The page's process crashed or was killed.
    virtual void processEnded() = 0;
    /// The page is about to get a key that closes a sheet. If it does not use the key, it returns
    /// it.
    virtual void closingKeyGiven() = 0;
    /// The answer to `ask`.
    virtual void answered() = 0;
    /// Fingers touch the page. Once the result is true, the page must not get their events.
    virtual bool touched(const TouchEvent& event) = 0;
    virtual void scrolled(const TrackpadEvent& event) = 0;
    /// The answer to `askForScroll`.
    virtual void scrollAnswered(bool used) = 0;

   protected:
    ~Client() = default;
  };

  virtual ~PageEngine() = default;

  /// False once the toolkit has deleted the page's view.
  virtual bool isShown() const = 0;
  virtual void load(const foundation::URL& address) = 0;
  /// Stops a load that made no progress for `limit`.
  virtual void stopLoad(std::chrono::milliseconds limit) = 0;
  /// Asks the page's process whether it is alive. A page that hangs never answers.
  virtual void ask() = 0;
  /// Asks whether the page has used any of the sideways scrolling since `time`, a
  /// `TrackpadEvent::time`: it scrolled, or a script handled the scrolling. A page that hangs never
  /// answers.
  virtual void askForScroll(double time) = 0;
  virtual bool canGoBack() const = 0;
  virtual bool canGoForward() const = 0;
  virtual void goBack() = 0;
  virtual void goForward() = 0;
};

}  // namespace quorix::hosting
