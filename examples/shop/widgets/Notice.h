#pragma once

#include <QTimer>
#include <QWidget>

namespace quorix::examples {

/// A word of confirmation that goes away by itself. It floats over its parent, above `footerHeight`
/// pixels at the bottom.
class Notice : public QWidget {
  Q_OBJECT

 public:
  Notice(int footerHeight, QWidget* parent);

  void say(const QString& words);
  void place();

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  int footerHeight_;
  QString words_;
  QTimer away_;
};

}  // namespace quorix::examples
