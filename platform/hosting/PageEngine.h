#pragma once

#include <chrono>
#include <cstdint>
#include <string_view>

#include "platform/foundation/Export.h"
#include "platform/foundation/URL.h"
#include "platform/hosting/Input.h"

namespace quorix::hosting {

/// A step in a page's history.
enum class HistoryStep : std::uint8_t { back, forward };

/// A live web page that the toolkit's web engine shows. The destructor removes it from the screen
/// and stops its load. Main thread.
///
/// After a change of this class, change the number in `qt/WebComponent.h` too.
class QUORIX_EXPORT PageEngine {
 public:
  /// Receives the page's events, often inside a call of the engine: do not destroy the page in
  /// them.
  class Client {
   public:
    /// Whether the page (`mainFrame`) or a frame in it may load `address`. If not, the address may
    /// open outside the app.
    virtual bool mayNavigate(std::string_view scheme, std::string_view address, bool mainFrame) = 0;
    /// The page asked for a new window with this address, which may be empty. The engine refuses
    /// it. `byUser`: a user gesture caused it.
    virtual void windowAsked(std::string_view address, bool byUser) = 0;
    /// A load began (0) or progressed. Above 0, data of the page has arrived.
    virtual void loading(int percent) = 0;
    /// A load ended. `error`: the number of the engine's network error, or 0.
    virtual void loadEnded(int error) = 0;
    /// The page's process crashed or was killed.
    virtual void processEnded() = 0;
    /// The result of a script that `ask` ran; empty if it is no text.
    virtual void answered(std::string_view answer) = 0;

    // Input, before the page gets it.
    /// The user clicked, lifted the last finger or pressed a key.
    virtual void gestured() = 0;
    /// The key that the page is about to get closes a sheet. The page returns it if it does not use
    /// it.
    virtual void closingKeyGiven() = 0;
    /// Fingers touch the page. Once the result is true, the page must not get their events until
    /// all of them have left it. Call `gestured` before the release.
    virtual bool touched(const TouchEvent& event) = 0;
    virtual void scrolled(const TrackpadEvent& event) = 0;

   protected:
    ~Client() = default;
  };

  virtual ~PageEngine() = default;

  /// False once the toolkit has deleted the page's view.
  virtual bool isShown() const = 0;
  virtual void load(const foundation::URL& address) = 0;
  /// Stops a load that made no progress for `limit`.
  virtual void stopLoad(std::chrono::milliseconds limit) = 0;
  /// Runs `script` in the world of `PageScripts::scrollNotes` and passes the result to `answered`.
  /// A page that hangs never answers.
  virtual void ask(std::string_view script) = 0;
  virtual bool canGo(HistoryStep step) const = 0;
  virtual void go(HistoryStep step) = 0;
};

}  // namespace quorix::hosting
