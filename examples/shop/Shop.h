#pragma once

#include <QObject>
#include <QVariantList>

namespace quorix::examples {

/// What the shop's screens know: who may sign in, what the demo bar offers, and whether the desktop
/// is dark. Main thread; needs the application object.
class Shop : public QObject {
  Q_OBJECT
  Q_PROPERTY(QString clientId READ clientId CONSTANT)
  Q_PROPERTY(QVariantList shoppers READ shoppers CONSTANT)
  Q_PROPERTY(QVariantList languages READ languages CONSTANT)
  Q_PROPERTY(QVariantList faces READ faces CONSTANT)
  Q_PROPERTY(bool desktopIsDark READ desktopIsDark NOTIFY desktopChanged)

 public:
  explicit Shop(QObject* parent = nullptr);

  static QString clientId() { return QStringLiteral("fjord-and-thread"); }
  /// { name, token, price } each.
  static QVariantList shoppers();
  /// { name, code, rightToLeft } each.
  static QVariantList languages();
  /// { name, regular, semiBold, textSize } each.
  static QVariantList faces();
  static bool desktopIsDark();

 signals:
  void desktopChanged();

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;
};

}  // namespace quorix::examples
