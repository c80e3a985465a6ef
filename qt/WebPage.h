#pragma once

#include <QColor>
#include <QUrl>

#include "platform/webkit/WebContent.h"

class QObject;

namespace quorix::qt {

/// A page on show, made by a `WebComponent`. Destroying it takes it off the screen and ends what it
/// was loading. Main thread.
class WebPage {
 public:
  /// Hears of the page, often within the engine's own call: do not destroy the page in it.
  class Client {
   public:
    /// The page asks for a new window with this address, which may be empty, or for an address that
    /// no page may load. It gets neither. `byUser`: the user's gesture caused it.
    virtual void windowAsked(const QUrl& address, bool byUser) = 0;
    /// A load began (0) or went on. It is above 0 once something of the page has come.
    virtual void loading(int percent) = 0;
    virtual void loadEnded() = 0;
    /// A load failed before anything of it came.
    virtual void loadFailed() = 0;
    /// The page's process crashed or was killed.
    virtual void processEnded() = 0;
    /// A key that closes a sheet goes to the page, which gives it back when it has no use for it.
    virtual void closingKeyGiven() = 0;
    /// The page is alive: the answer to `ask`.
    virtual void answered() = 0;

   protected:
    ~Client() = default;
  };

  struct Options {
    webkit::WebContent::Settings settings;
    QColor background;  ///< shows where the page has not painted, has none, or could not be loaded
  };

  virtual ~WebPage() = default;

  /// The item or widget that shows it; null once somebody else has deleted it. Keys that the page
  /// does not use go to its parent.
  virtual QObject* view() const = 0;
  virtual void load(const QUrl& address) = 0;
  virtual void stop() = 0;
  /// Has the page's process tell the client that it answers; one that hangs never does.
  virtual void ask() = 0;
  virtual bool canGoBack() const = 0;
  virtual void goBack() = 0;
  virtual void goForward() = 0;
};

}  // namespace quorix::qt
