#pragma once

#include <QDBusVariant>
#include <QObject>
#include <optional>

namespace quorix::qt {

/// The settings service that desktops on D-Bus have in common, asked about motion and text size. It
/// is asked in the background and not started for it: until it has answered, motion and text are as
/// usual. Main thread.
class DesktopPortal : public QObject {
  Q_OBJECT

 public:
  explicit DesktopPortal(QObject* parent);

  /// The user asked for less motion.
  bool prefersReducedMotion() const { return reducedMotion_ == 1U || animations_ == false; }
  /// The user's text size as a multiple of the usual one.
  double textScale() const { return textScale_; }

 signals:
  void changed();

 private slots:
  void take(const QString& group, const QString& key, const QDBusVariant& value);

 private:
  void ask(const QString& group, const QString& key);

  std::optional<unsigned> reducedMotion_;  ///< every desktop's: 1 for less
  std::optional<bool> animations_;         ///< GNOME's own, which is older
  double textScale_ = 1;
};

}  // namespace quorix::qt
