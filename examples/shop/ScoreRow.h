#pragma once

#include <QString>

#include "qt/ViewItem.h"

namespace quorix::examples {

/// The score row as a QML element: it asks the public builder for a fresh widget whenever what the
/// widget is made of changes, and shows that. It has no height when there is nothing to show.
///
///     ScoreRow { width: parent.width; clientId: "my-shop"; locale: "en"; token: shopper.token }
class ScoreRow : public qt::ViewItem {
  Q_OBJECT
  // A new value of these means a new widget.
  Q_PROPERTY(QString clientId MEMBER clientId_ WRITE setClientId NOTIFY changed)
  Q_PROPERTY(QString locale MEMBER locale_ WRITE setLocale NOTIFY changed)
  Q_PROPERTY(QString token MEMBER token_ WRITE setToken NOTIFY changed)
  /// Faces of the shop's own, empty for the widget's.
  Q_PROPERTY(QString regularFont MEMBER regularFont_ WRITE setRegularFont NOTIFY changed)
  Q_PROPERTY(QString semiBoldFont MEMBER semiBoldFont_ WRITE setSemiBoldFont NOTIFY changed)
  // These the widget on screen follows.
  Q_PROPERTY(Appearance appearance MEMBER appearance_ WRITE setShownAppearance NOTIFY changed)
  Q_PROPERTY(bool rightToLeft MEMBER rightToLeft_ WRITE setRightToLeft NOTIFY changed)
  /// A content size category's name, such as "large" or "accessibilityMedium".
  Q_PROPERTY(QString textSize MEMBER textSize_ WRITE setTextSizeNamed NOTIFY changed)
  /// Whether sheets may move. False for still pictures.
  Q_PROPERTY(bool moving MEMBER moving_ WRITE setMoving NOTIFY changed)

 public:
  enum Appearance { System, Light, Dark };
  Q_ENUM(Appearance)

  using qt::ViewItem::ViewItem;

  void setClientId(const QString& clientId) { replace(clientId_, clientId); }
  void setLocale(const QString& locale) { replace(locale_, locale); }
  void setToken(const QString& token) { replace(token_, token); }
  void setRegularFont(const QString& face) { replace(regularFont_, face); }
  void setSemiBoldFont(const QString& face) { replace(semiBoldFont_, face); }

  void setShownAppearance(Appearance appearance);
  void setRightToLeft(bool rightToLeft);
  void setTextSizeNamed(const QString& name);
  void setMoving(bool moving);

 signals:
  void changed();

 protected:
  void componentComplete() override;

 private:
  void replace(QString& value, const QString& replacement);
  void build();

  QString clientId_;
  QString locale_;
  QString token_;
  QString regularFont_;
  QString semiBoldFont_;
  QString textSize_ = QStringLiteral("large");
  Appearance appearance_ = System;
  bool rightToLeft_ = false;
  bool moving_ = true;
};

}  // namespace quorix::examples
