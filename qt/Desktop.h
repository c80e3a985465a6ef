#pragma once

#include <QObject>

#include "platform/foundation/Export.h"
#include "platform/swiftui/Environment.h"

class QPalette;

namespace quorix::qt {

class DesktopPortal;

/// The desktop's settings for every surface of the process: light or dark, reading direction, text
/// size, motion. Lives as long as the application object; main thread.
class QUORIX_EXPORT Desktop : public QObject {
  Q_OBJECT

 public:
  /// Null without an application object.
  static Desktop* instance();

  /// The desktop's settings, at `scale` device pixels for each point.
  static swiftui::Environment environment(double scale);
  /// Dark if the palette's window is darker than its text: not every supported version of Qt tells
  /// the color scheme.
  static graphics::Appearance appearanceOf(const QPalette& palette);
  static layout::LayoutDirection directionOf(Qt::LayoutDirection direction);
  /// The user wants less motion, by the latest state of the desktop's settings.
  static bool prefersReducedMotion();

 signals:
  void changed();

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  explicit Desktop(QObject* application);
  /// The user's text size, unless Qt has already enlarged everything by it.
  static swiftui::ContentSizeCategory textSize();

  DesktopPortal* portal_ = nullptr;  ///< null without D-Bus
};

}  // namespace quorix::qt
