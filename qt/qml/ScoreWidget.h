#pragma once

#include "qt/qml/WidgetItem.h"

namespace quorix::qml {

/// The score row of one shopper; a tap opens its detail sheet over the window. A token that cannot
/// be read, an empty token and an empty client id show nothing and take no height.
///
///     ScoreWidget { width: parent.width; clientId: "my-shop"; locale: "es"; token: shopper.token }
class ScoreWidget : public quorix::qml::WidgetItem {
  Q_OBJECT
  QML_ELEMENT

  /// The retailer's.
  Q_PROPERTY(QString clientId READ clientId WRITE setClientId RESET resetClientId NOTIFY
                 clientIdChanged FINAL)
  /// The shopper's, as the widget service issued it. Another token with the same figures leaves the
  /// widget as it is, and its sheet open.
  Q_PROPERTY(QString token READ token WRITE setToken RESET resetToken NOTIFY tokenChanged FINAL)

 public:
  using WidgetItem::WidgetItem;

  QString clientId() const { return clientId_; }
  void setClientId(const QString& clientId);
  void resetClientId() { setClientId({}); }
  QString token() const { return token_; }
  void setToken(const QString& token);
  void resetToken() { setToken({}); }

 signals:
  void clientIdChanged();
  void tokenChanged();

 protected:
  swiftui::View widget() const override;

 private:
  QString clientId_;
  QString token_;
};

}  // namespace quorix::qml
