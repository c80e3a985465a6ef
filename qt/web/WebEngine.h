#pragma once

#include <QWebEngineScript>

#include "qt/WebComponent.h"

namespace quorix::qt {

/// What Qt WebEngine wants before its first view, in either toolkit. The library leaves the
/// engine's sandbox and flags to the host. Main thread.
namespace WebEngine {

/// Readies the engine on first call. False, with a word on the log, where it would end the process.
bool start();

/// After the first profile was made, before its first page: lets assistive technology read pages.
void openToReaders();

/// For a page, to run before its own scripts: refuses passkeys. Newer engines wait for a key
/// without asking us, and without an end.
QWebEngineScript refusals();

/// For a page, in a world of its own and only with the page's own scripts: notes which sideways
/// scrolling the page uses. `scrollAnswer` asks it about the time since `time`, in milliseconds
/// since 1970: whether the page used any, or nothing if it saw none.
QWebEngineScript scrollNotes();
QString scrollAnswer(double time);

/// A load failed: says so on the log, and tells the client if nothing of it came. `code` is the
/// engine's.
void loadFailed(WebPage::Client& client, const QUrl& address, const QString& why, int code);

}  // namespace WebEngine
}  // namespace quorix::qt
