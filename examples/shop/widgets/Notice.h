#pragma once

#include <QTimer>
#include <QWidget>

namespace quorix::examples {

/// A confirmation that disappears after a while. Floats over its parent, `footerHeight` pixels
/// above the bottom.
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
