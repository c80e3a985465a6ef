#pragma once

#include <QAbstractButton>
#include <QSvgRenderer>
#include <QWidget>

class QPainter;

namespace quorix::examples {

/// Whether `widget` got the focus by keyboard and draws its ring.
inline bool isFocusShown(const QWidget& widget) {
  return widget.hasFocus() && widget.window()->testAttribute(Qt::WA_KeyboardFocusChange);
}

/// A button of the shop, with colors from the palette.
class ShopButton : public QAbstractButton {
  Q_OBJECT

 public:
  enum class Look {
    primary,  ///< the main action of a page
    chip,     ///< one of several choices; the chosen one is checked
    link,     ///< a minor action
  };

  explicit ShopButton(Look look, QWidget* parent = nullptr);

  QSize sizeHint() const override;

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  bool isFilled() const { return look_ == Look::primary || isChecked(); }
  QBrush ground() const;
  QColor ink() const;

  Look look_;
};

/// A button with a drawing of the shop, for light and for dark backgrounds, and a number at its
/// corner if there is one. Its text is for screen readers.
class IconButton : public QAbstractButton {
  Q_OBJECT

 public:
  explicit IconButton(const QString& name, QWidget* parent = nullptr);

  /// Whether the drawing is mirrored from right to left.
  void setPointing(bool pointing) { pointing_ = pointing; }
  void setBadge(int number);

  QSize sizeHint() const override { return {44, 44}; }

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  void paintBadge(QPainter& painter) const;

  QSvgRenderer onLight_;
  QSvgRenderer onDark_;
  bool pointing_ = false;
  int badge_ = 0;
};

}  // namespace quorix::examples
