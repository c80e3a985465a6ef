#pragma once

#include <QAbstractButton>
#include <QSvgRenderer>
#include <QWidget>

class QPainter;

namespace quorix::examples {

/// Whether `widget` has the focus by keyboard, so that its ring is drawn.
inline bool isFocusShown(const QWidget& widget) {
  return widget.hasFocus() && widget.window()->testAttribute(Qt::WA_KeyboardFocusChange);
}

/// A button of the shop's. It takes its colors from the palette.
class ShopButton : public QAbstractButton {
  Q_OBJECT

 public:
  enum class Look {
    primary,  ///< the one thing to do on a page
    chip,     ///< one of a few; the chosen one is checked
    link,     ///< an aside
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

/// A drawing from the shop's art that acts, with a number at its corner when there is one. It has a
/// variant for light backgrounds and one for dark ones. Its text is for screen readers.
class IconButton : public QAbstractButton {
  Q_OBJECT

 public:
  explicit IconButton(const QString& name, QWidget* parent = nullptr);

  /// Whether the drawing points the other way from right to left.
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
