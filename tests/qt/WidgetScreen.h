#pragma once

#include <QWidget>
#include <memory>

#include "platform/swiftui/View.h"
#include "qt/widgets/ViewWidget.h"
#include "tests/qt/Screen.h"

namespace quorix::testing {

class WidgetScreen : public QObject, public Screen {
 public:
  WidgetScreen();
  ~WidgetScreen() override;

  QWindow& window() override { return *host_->windowHandle(); }
  /// The top-level widget.
  QWidget& host() { return *host_; }
  void closeWindow() { host_.reset(); }
  QImage grab() override { return host_->grab().toImage(); }
  std::function<int()> listenBelow() override;

  /// A view at `place`, without motion; its height is what it wants where `place` has none.
  qt::ViewWidget* add(swiftui::View view, QRectF place);
  /// Takes `widget` over from another screen.
  void adopt(qt::ViewWidget* widget);
  /// Something of the host's that can have the focus.
  QWidget* addFocusable();
  static void focus(QWidget* widget) { widget->setFocus(); }
  static bool hasFocus(const QWidget* widget) { return widget->hasFocus(); }
  static QRect placeOf(const QWidget* widget) { return widget->geometry(); }

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  QObject& accessibleRoot() override { return *host_; }

  std::unique_ptr<QWidget> host_;
  QWidget* below_ = nullptr;
  std::ptrdiff_t eventsBelow_ = 0;
};

}  // namespace quorix::testing
