#pragma once

#include <QQuickItem>
#include <QString>

#include "qt/quick/ViewItem.h"

namespace quorix::examples {

/// The score row as a QML element. Whenever what the widget is made of changes it asks the public
/// builder for a fresh widget and shows that on a fresh surface, so that the widget starts anew:
/// its sheet closed, its texts fetched again. It has no height when there is nothing to show.
///
///     ScoreRow { width: parent.width; clientId: "my-shop"; locale: "en"; token: shopper.token }
class ScoreRow : public QQuickItem {
  Q_OBJECT
  // A new value of these means a new widget.
  Q_PROPERTY(QString clientId MEMBER clientId_ WRITE setClientId NOTIFY changed)
  Q_PROPERTY(QString locale MEMBER locale_ WRITE setLocale NOTIFY changed)
  Q_PROPERTY(QString token MEMBER token_ WRITE setToken NOTIFY changed)
  /// Faces of the shop's own, empty for the widget's.
  Q_PROPERTY(QString regularFont MEMBER regularFont_ WRITE setRegularFont NOTIFY changed)
  Q_PROPERTY(QString semiBoldFont MEMBER semiBoldFont_ WRITE setSemiBoldFont NOTIFY changed)
  // These the widget on screen follows.
  Q_PROPERTY(Appearance appearance MEMBER appearance_ WRITE setAppearance NOTIFY changed)
  Q_PROPERTY(bool rightToLeft MEMBER rightToLeft_ WRITE setRightToLeft NOTIFY changed)
  /// A content size category's name, such as "large" or "accessibilityMedium".
  Q_PROPERTY(QString textSize MEMBER textSize_ WRITE setTextSize NOTIFY changed)
  /// Whether sheets may move. False for still pictures.
  Q_PROPERTY(bool moving MEMBER moving_ WRITE setMoving NOTIFY changed)

 public:
  enum Appearance { System, Light, Dark };
  Q_ENUM(Appearance)

  explicit ScoreRow(QQuickItem* parent = nullptr) : QQuickItem(parent) {}

  void setClientId(const QString& clientId) { replace(clientId_, clientId); }
  void setLocale(const QString& locale) { replace(locale_, locale); }
  void setToken(const QString& token) { replace(token_, token); }
  void setRegularFont(const QString& face) { replace(regularFont_, face); }
  void setSemiBoldFont(const QString& face) { replace(semiBoldFont_, face); }

  void setAppearance(Appearance appearance) { follow(appearance_, appearance); }
  void setRightToLeft(bool rightToLeft) { follow(rightToLeft_, rightToLeft); }
  void setTextSize(const QString& category) { follow(textSize_, category); }
  void setMoving(bool moving) { follow(moving_, moving); }

 signals:
  void changed();

 protected:
  void componentComplete() override;
  void geometryChange(const QRectF& now, const QRectF& before) override;

 private:
  void replace(QString& value, const QString& replacement);
  template <class Value>
  void follow(Value& value, const Value& now);
  void build();
  void applySettings();

  QString clientId_;
  QString locale_;
  QString token_;
  QString regularFont_;
  QString semiBoldFont_;
  QString textSize_ = QStringLiteral("large");
  Appearance appearance_ = System;
  bool rightToLeft_ = false;
  bool moving_ = true;

  qt::ViewItem* surface_ = nullptr;  ///< a child item; null until QML has set all properties
};

template <class Value>
void ScoreRow::follow(Value& value, const Value& now) {
  if (value == now) return;
  value = now;
  if (surface_) applySettings();
  emit changed();
}

}  // namespace quorix::examples
