#pragma once

namespace quorix::qt {

/// What Qt WebEngine wants before its first view, in either toolkit. The library leaves the
/// engine's sandbox and flags to the host. Main thread.
namespace WebEngine {

/// Readies the engine on first call. False, with a word on the log, where it would end the process.
bool start();

/// Whether a load that failed with this code of the engine's brought nothing: its codes from -100
/// down are the network's, the server's certificate's and HTTP's own.
constexpr bool broughtNothing(int errorCode) { return errorCode <= -100; }

}  // namespace WebEngine
}  // namespace quorix::qt
