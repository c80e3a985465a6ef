#pragma once

#include <QGuiApplication>

namespace quorix::tool {

/// Hides Qt's own messages from the terminal. A fatal one (a missing platform plug-in) ends the
/// tool with one line. Call it before the application object is made.
void keepQtQuiet();

/// The application object of a command that lays out or paints, without the network. Needs no
/// display, unless the environment selects one with QT_QPA_PLATFORM. Hides Qt's own messages.
class PictureApplication {
 public:
  PictureApplication();

 private:
  int argc_ = 1;
  char name_[7] = "quorix";
  char* argv_[2] = {name_, nullptr};
  QGuiApplication application_;
};

}  // namespace quorix::tool
