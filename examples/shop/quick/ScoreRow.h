#pragma once

#include "examples/shop/quick/WidgetItem.h"

namespace quorix::examples {

/// The score row as a QML element.
///
///     ScoreRow { width: parent.width; clientId: "my-shop"; locale: "en"; token: shopper.token }
class ScoreRow : public WidgetItem {
  Q_OBJECT
  Q_PROPERTY(QString clientId MEMBER clientId_ WRITE setClientId NOTIFY changed)
  Q_PROPERTY(QString token MEMBER token_ WRITE setToken NOTIFY changed)

 public:
  using WidgetItem::WidgetItem;

  void setClientId(const QString& clientId) { replace(clientId_, clientId); }
  void setToken(const QString& token) { replace(token_, token); }

 protected:
  swiftui::View widget() const override;

 private:
  QString clientId_;
  QString token_;
};

}  // namespace quorix::examples
