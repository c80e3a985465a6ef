#pragma once

#include <QList>
#include <QWebEngineScript>

namespace quorix::qt {

/// What Qt WebEngine wants before its first view, in either toolkit. The library leaves the
/// engine's sandbox and flags to the host. Main thread.
namespace WebEngine {

/// Readies the engine on first call. False, with a word on the log, where it would end the process.
bool start();

/// After the first profile was made, before its first page: lets assistive technology read pages.
void openToReaders();

/// What runs in each page beside its own scripts.
QList<QWebEngineScript> scripts();

}  // namespace WebEngine
}  // namespace quorix::qt
