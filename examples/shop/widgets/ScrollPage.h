#pragma once

#include <QScrollArea>
#include <QScrollBar>
#include <QVBoxLayout>

class QAbstractScrollArea;

namespace quorix::examples {

/// A slim scroll bar over the edge of a scroll area. Takes no space from it.
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

/// A page of the shop. It scrolls if it is taller than the window. The width of its column is
/// limited for readability.
class ScrollPage : public QScrollArea {
  Q_OBJECT

 public:
  explicit ScrollPage(QWidget* parent = nullptr);

 protected:
  QVBoxLayout& column() const { return *column_; }
  /// Puts `widget` above the column, over the whole width of the page.
  void setBanner(QWidget* widget);

 private:
  QVBoxLayout* page_;
  QVBoxLayout* column_;
};

}  // namespace quorix::examples
