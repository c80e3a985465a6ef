#pragma once

#include "qt/WebPage.h"

namespace quorix::qt {

/// What Qt WebEngine wants before its first view, in either toolkit. The library leaves the
/// engine's sandbox and flags to the host. Main thread.
namespace WebEngine {

/// Readies the engine on first call. False, with a word on the log, where it would end the process.
bool start();

/// A load failed: says so on the log, and tells the client if nothing of it came. `code` is the
/// engine's.
void loadFailed(WebPage::Client& client, const QUrl& address, const QString& why, int code);

}  // namespace WebEngine
}  // namespace quorix::qt
