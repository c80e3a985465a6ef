#pragma once

#include <QList>
#include <QWebEngineScript>

namespace quorix::qt {

/// Prepares Qt WebEngine, for either toolkit. The library leaves the engine's sandbox and flags to
/// the host. Main thread.
namespace WebEngine {

/// Starts the engine on the first call. False if it would end the process; the log says why.
bool start();

/// Lets assistive technology read pages. Call it after the first profile and before its first page.
void openToReaders();

/// The scripts that run in each page beside its own.
QList<QWebEngineScript> scripts();

}  // namespace WebEngine
}  // namespace quorix::qt
