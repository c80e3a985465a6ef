#pragma once

#include <QScrollArea>
#include <QVBoxLayout>

namespace quorix::examples {

/// A page of the shop, which scrolls when it is longer than the window. Its column keeps to a
/// width that is good to read.
class ScrollPage : public QScrollArea {
  Q_OBJECT

 public:
  explicit ScrollPage(QWidget* parent = nullptr);

 protected:
  QVBoxLayout& column() const { return *column_; }
  /// Puts `widget` above the column, over the page's whole width.
  void setBanner(QWidget* widget);

 private:
  QVBoxLayout* page_;
  QVBoxLayout* column_;
};

}  // namespace quorix::examples
