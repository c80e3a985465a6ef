#pragma once

#include <QDBusVariant>
#include <QObject>
#include <optional>

namespace quorix::qt {

/// Asks the settings service that desktops on D-Bus share about motion and text size, in the
/// background and without starting it. Until it answers, motion and text size are the usual ones.
/// Main thread.
class DesktopPortal : public QObject {
  Q_OBJECT

 public:
  DesktopPortal();

  /// The user wants less motion.
  bool prefersReducedMotion() const { return reducedMotion_ == 1U || animations_ == false; }
  /// The user's text size as a multiple of the usual one.
  double textScale() const { return textScale_; }

 signals:
  void changed();

 private slots:
  void take(const QString& group, const QString& key, const QDBusVariant& value);

 private:
  void ask(const QString& group, const QString& key);

  std::optional<unsigned> reducedMotion_;  ///< of every desktop: 1 for less
  std::optional<bool> animations_;         ///< GNOME's older setting
  double textScale_ = 1;
};

}  // namespace quorix::qt
