#pragma once

namespace quorix::tool {

/// Keeps Qt's own remarks off the terminal; what stops Qt (a platform plug-in that is not there)
/// ends the tool with one line. Before the application object is made.
void keepQtQuiet();

}  // namespace quorix::tool
