#pragma once

#include <QGuiApplication>

namespace quorix::tool {

/// Keeps Qt's own remarks off the terminal; what stops Qt (a platform plug-in that is not there)
/// ends the tool with one line. Before the application object is made.
void keepQtQuiet();

/// The application object of a command that lays out or paints. It needs no display, unless the
/// environment asks for one with QT_QPA_PLATFORM, and keeps Qt's own remarks off the terminal.
class PictureApplication {
 public:
  PictureApplication();

  /// Runs what waits on the main queue.
  void takeTurn() const;

 private:
  int argc_ = 1;
  char name_[7] = "quorix";
  char* argv_[2] = {name_, nullptr};
  QGuiApplication application_;
};

}  // namespace quorix::tool
