#pragma once

#include <QImage>
#include <QPointer>
#include <QRectF>

#include "platform/hosting/ViewHost.h"
#include "qt/EnvironmentSource.h"
#include "qt/FingerTracker.h"
#include "qt/quick/QuickAccessibleSurface.h"
#include "qt/quick/WindowWatcher.h"

class QSGNode;

namespace quorix::qt {

class SheetItem;
class ViewItem;

/// What a view item keeps and does behind its public face. Main thread, but for `paint`.
class ViewSurface final : private hosting::ViewHost::Client,
                          private WindowWatcher::Client,
                          private QuickAccessibleSurface {
 public:
  explicit ViewSurface(ViewItem& item);
  ~ViewSurface() override;

  hosting::ViewHost& host() { return host_; }
  EnvironmentSource& settings() { return settings_; }
  FingerTracker& finger() { return finger_; }

  /// The settings, the desktop or the window's scale changed.
  void environmentChanged();
  /// The item came to another window, or to none.
  void windowChanged();
  void parentChanged();
  void onScreenChanged();
  void moved() { WindowWatcher::moved(*this); }
  void sizeChanged(bool width);
  /// The view or its settings changed.
  void contentChanged();

  /// Before a frame: settles size, scene and picture.
  void polish();
  QSGNode* paint(QSGNode* old);

  bool takesTapAt(QPointF point);
  void focusCame(Qt::FocusReason reason);
  void focusWent(Qt::FocusReason reason);
  /// The focus is on another element, or its ring comes or goes.
  void focusMoved(bool byKeyboard);

 private:
  void viewNeedsDisplay() override;
  void presentationChanged() override;

  void windowVisibilityChanged() override { onScreenChanged(); }
  void desktopChanged() override { environmentChanged(); }
  void accessibilityBegan() override;
  QRectF boundsInParent() const override;
  void placeMayHaveChanged() override;

  const std::vector<render::AccessibilityElement>& accessibilityElements() override;
  void performAccessibilityAction(int index) override { host_.activate(index); }
  std::optional<layout::Rect> focusedFrame() const override;

  layout::Size size() const;
  double scale() const;
  void updateIdealSize();
  void updateImplicitSize();
  void refreshScene();
  bool place();
  void updatePicture();
  void updateRing();
  void presentSheet();
  int actingElements();

  ViewItem& item_;
  hosting::ViewHost host_;
  EnvironmentSource settings_;
  FingerTracker finger_;
  WindowWatcher* watcher_ = nullptr;
  QPointer<SheetItem> sheet_;

  layout::Size ideal_;
  QPointF offset_;  ///< from the item's corner to the whole device pixel next to it
  QImage picture_;  ///< only on its way to the scene graph
  QImage ringPicture_;
  std::optional<layout::Rect> ring_;

  bool idealStale_ = true;
  bool sceneStale_ = true;
  bool pictureStale_ = true;
  bool fitting_ = false;
  bool inViewport_ = false;
  bool painted_ = false;  ///< the scene graph has, or is about to get, a picture
  bool ringWanted_ = false;
  bool presentQueued_ = false;
};

}  // namespace quorix::qt
