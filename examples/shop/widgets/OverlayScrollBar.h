#pragma once

#include <QScrollBar>

class QAbstractScrollArea;

namespace quorix::examples {

/// A slim scroll bar over the edge of a scroll area, which takes no room from it.
class OverlayScrollBar : public QScrollBar {
  Q_OBJECT

 public:
  explicit OverlayScrollBar(QAbstractScrollArea& area);

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;
  void paintEvent(QPaintEvent* event) override;

 private:
  void follow();

  QAbstractScrollArea& area_;
};

}  // namespace quorix::examples
