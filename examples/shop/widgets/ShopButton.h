#pragma once

#include <QAbstractButton>

namespace quorix::examples {

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

}  // namespace quorix::examples
