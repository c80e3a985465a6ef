#pragma once

#include <QObject>

#include "platform/foundation/Export.h"
#include "platform/swiftui/Environment.h"

class QPalette;

namespace quorix::qt {

class DesktopPortal;

/// What the desktop says for every surface of the process: light or dark, reading direction, text
/// size, motion. Lives as long as the application object; main thread.
class QUORIX_EXPORT Desktop : public QObject {
  Q_OBJECT

 public:
  /// Null without an application object.
  static Desktop* instance();

  /// What the desktop says, at `scale` device pixels for each point.
  static swiftui::Environment environment(double scale);
  /// Dark when the palette's window is darker than its text: there is no other word about it that
  /// every supported version passes on.
  static graphics::Appearance appearanceOf(const QPalette& palette);
  static layout::LayoutDirection directionOf(Qt::LayoutDirection direction);
  /// The user asked for less motion: the latest word of the desktop's settings.
  static bool prefersReducedMotion();

 signals:
  void changed();

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  explicit Desktop(QObject* application);
  /// The user's, as far as Qt has not enlarged everything by it.
  static swiftui::ContentSizeCategory textSize();

  DesktopPortal* portal_ = nullptr;  ///< where there is D-Bus
};

}  // namespace quorix::qt
