#pragma once

#include <QAbstractButton>
#include <QSvgRenderer>

class QPainter;

namespace quorix::examples {

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
