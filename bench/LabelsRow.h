#pragma once

#include <QWidget>

#include "bench/Shopper.h"

class QLabel;

namespace quorix::bench {

/// The score row as one would write it with Qt Widgets.
class LabelsRow final : public QWidget {
  Q_OBJECT

 public:
  LabelsRow(const Shopper& shopper, QWidget* parent);

 signals:
  void activated();

 protected:
  void mouseReleaseEvent(QMouseEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
};

}  // namespace quorix::bench
