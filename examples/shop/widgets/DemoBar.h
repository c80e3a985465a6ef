#pragma once

#include <QComboBox>
#include <QSvgRenderer>
#include <QWidget>

namespace quorix::examples {

/// One control of the demo bar: a caption above the value, and a drop-down list.
class ChoiceBox : public QComboBox {
  Q_OBJECT

 public:
  ChoiceBox(const QString& caption, const QStringList& values, QWidget* parent = nullptr);

  QSize sizeHint() const override { return {170, 42}; }
  QSize minimumSizeHint() const override { return {110, 42}; }

  void hidePopup() override;

 protected:
  void paintEvent(QPaintEvent* event) override;
  void wheelEvent(QWheelEvent* event) override;

 private:
  QString caption_;
  QSvgRenderer arrow_;
};

class Shop;

/// The demo's controls, separate from the shop and always dark.
class DemoBar : public QWidget {
  Q_OBJECT

 public:
  explicit DemoBar(Shop& shop, QWidget* parent = nullptr);

 protected:
  void paintEvent(QPaintEvent* event) override;
};

}  // namespace quorix::examples
