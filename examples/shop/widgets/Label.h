#pragma once

#include <QLabel>
#include <QWidget>

namespace quorix::examples {

/// A thin horizontal line.
class Hairline : public QWidget {
  Q_OBJECT

 public:
  explicit Hairline(QWidget* parent = nullptr) : QWidget(parent) {
    setFixedHeight(1);
    setAutoFillBackground(true);
    setBackgroundRole(QPalette::Mid);
  }
};

/// A text of the shop, aligned to the leading edge and broken into lines.
class Label : public QLabel {
  Q_OBJECT

 public:
  enum class Look {
    title,    ///< of a page
    price,    ///< of the product
    heading,  ///< over a section
    body,
    strong,
    quiet,
  };

  explicit Label(Look look, QWidget* parent = nullptr);

 protected:
  void changeEvent(QEvent* event) override;

 private:
  void align();
};

}  // namespace quorix::examples
