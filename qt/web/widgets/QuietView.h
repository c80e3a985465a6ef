#pragma once

#include <QWebEngineView>

namespace quorix::qt {

/// Shows a `QuietPage`, and keeps from the screen what the engine opens over it by itself: the
/// color dialog, for which the page has no way to refuse, menus and tooltips. Main thread.
class QuietView : public QWebEngineView {
  Q_OBJECT

 public:
  explicit QuietView(QWidget* parent);

 protected:
  bool event(QEvent* event) override;
  void childEvent(QChildEvent* event) override;
};

}  // namespace quorix::qt
