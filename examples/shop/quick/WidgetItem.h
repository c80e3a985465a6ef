#pragma once

#include <QQuickItem>
#include <QString>
#include <optional>
#include <string>

#include "platform/swiftui/View.h"
#include "qt/quick/ViewItem.h"

namespace quorix::examples {

/// A widget of the library as a QML element. Whenever what the widget is made of changes it asks
/// the public builder for a fresh one and shows that on a fresh surface, so that the widget starts
/// anew: its sheet closed, its texts fetched again. It has no height when there is nothing to show.
class WidgetItem : public QQuickItem {
  Q_OBJECT
  // A new value of these means a new widget.
  Q_PROPERTY(QString locale MEMBER locale_ WRITE setLocale NOTIFY changed)
  /// Faces of the shop's own, empty for the widget's.
  Q_PROPERTY(QString regularFont MEMBER regularFont_ WRITE setRegularFont NOTIFY changed)
  Q_PROPERTY(QString semiBoldFont MEMBER semiBoldFont_ WRITE setSemiBoldFont NOTIFY changed)
  // These the widget on screen follows.
  Q_PROPERTY(bool dark MEMBER dark_ WRITE setDark NOTIFY changed)
  Q_PROPERTY(bool rightToLeft MEMBER rightToLeft_ WRITE setRightToLeft NOTIFY changed)
  /// A content size category's name, such as "large" or "accessibilityMedium".
  Q_PROPERTY(QString textSize MEMBER textSize_ WRITE setTextSize NOTIFY changed)
  /// Whether sheets may move. False for still pictures.
  Q_PROPERTY(bool moving MEMBER moving_ WRITE setMoving NOTIFY changed)

 public:
  explicit WidgetItem(QQuickItem* parent = nullptr) : QQuickItem(parent) {}

  void setLocale(const QString& locale) { replace(locale_, locale); }
  void setRegularFont(const QString& face) { replace(regularFont_, face); }
  void setSemiBoldFont(const QString& face) { replace(semiBoldFont_, face); }

  void setDark(bool dark) { follow(dark_, dark); }
  void setRightToLeft(bool rightToLeft) { follow(rightToLeft_, rightToLeft); }
  void setTextSize(const QString& category) { follow(textSize_, category); }
  void setMoving(bool moving) { follow(moving_, moving); }

 signals:
  void changed();

 protected:
  /// A fresh widget from the public builder.
  virtual swiftui::View widget() const = 0;

  std::string locale() const { return locale_.toStdString(); }
  std::optional<std::string> regularFace() const { return nonEmpty(regularFont_); }
  std::optional<std::string> semiBoldFace() const { return nonEmpty(semiBoldFont_); }

  /// For what else the widget is made of.
  void replace(QString& value, const QString& replacement);

  void componentComplete() override;
  void geometryChange(const QRectF& now, const QRectF& before) override;

 private:
  static std::optional<std::string> nonEmpty(const QString& text) {
    return text.isEmpty() ? std::nullopt : std::optional(text.toStdString());
  }
  template <class Value>
  void follow(Value& value, const Value& now);
  void build();
  void applySettings();

  QString locale_;
  QString regularFont_;
  QString semiBoldFont_;
  QString textSize_ = QStringLiteral("large");
  bool dark_ = false;
  bool rightToLeft_ = false;
  bool moving_ = true;

  qt::ViewItem* surface_ = nullptr;  ///< a child item; null until QML has set all properties
};

template <class Value>
void WidgetItem::follow(Value& value, const Value& now) {
  if (value == now) return;
  value = now;
  if (surface_) applySettings();
  emit changed();
}

}  // namespace quorix::examples
