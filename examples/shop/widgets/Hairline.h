#pragma once

#include <QWidget>

namespace quorix::examples {

/// A thin line across.
class Hairline : public QWidget {
  Q_OBJECT

 public:
  explicit Hairline(QWidget* parent = nullptr) : QWidget(parent) {
    setFixedHeight(1);
    setAutoFillBackground(true);
    setBackgroundRole(QPalette::Mid);
  }
};

}  // namespace quorix::examples
