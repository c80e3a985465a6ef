#pragma once

#include <QDBusVariant>
#include <QObject>
#include <optional>

namespace quorix::qt {

/// The settings service that desktops on D-Bus have in common, asked about motion. It is asked in
/// the background and not started for it: until it has answered, there is no wish. Main thread.
class DesktopPortal : public QObject {
  Q_OBJECT

 public:
  explicit DesktopPortal(QObject* parent);

  /// The user asked for less motion.
  bool prefersReducedMotion() const { return reducedMotion_ == 1U || animations_ == false; }

 signals:
  void changed();

 private slots:
  void take(const QString& group, const QString& key, const QDBusVariant& value);

 private:
  void ask(const QString& group, const QString& key);

  std::optional<unsigned> reducedMotion_;  ///< every desktop's: 1 for less
  std::optional<bool> animations_;         ///< GNOME's own, which is older
};

}  // namespace quorix::qt
