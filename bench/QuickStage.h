#pragma once

#include <QImage>
#include <QQmlComponent>
#include <QQmlEngine>
#include <QQuickRenderControl>
#include <QQuickWindow>
#include <QVariantMap>

class QQuickItem;

namespace quorix::bench {

/// A Qt Quick window whose frames are rendered into an image by the software scene graph,
/// synchronously and without a window system.
class QuickStage {
 public:
  explicit QuickStage(QSize size);

  QQuickItem* root() { return window_.contentItem(); }
  /// The latest frame.
  const QImage& image() const { return image_; }

  /// Renders the next frame.
  void frame();

 private:
  QQuickRenderControl control_;
  QQuickWindow window_{&control_};
  QImage image_;
};

/// Makes an item. Ends the process on failure.
QQuickItem* create(QQmlComponent& component, const QVariantMap& properties);

/// Makes widgets in QML: one engine and one component, compiled ahead of time and loaded once.
class QmlPeer {
 public:
  /// `file` is the name of a peer: "LeanScoreRow", "InfoWidget", "SheetRow".
  explicit QmlPeer(const QString& file);

  /// Makes one, `width` points wide, in `parent`, which does not own it.
  QQuickItem* make(QVariantMap properties, QQuickItem* parent, double width);

 private:
  QQmlEngine engine_;
  QQmlComponent component_;
};

/// A finger's short tap.
void sendTap(QQuickWindow& window, QPointF at);
void sendEscape(QQuickWindow& window);

}  // namespace quorix::bench
