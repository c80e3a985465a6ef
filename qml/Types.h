#pragma once

#include <QtQml/qqmlregistration.h>
#include <QColor>
#include <QObject>
#include <QQmlParserStatus>

#include "qml/WidgetItem.h"
#include "qt/quick/ViewItem.h"

namespace quorix::qml {

/// Tells QML tools that `qt::ViewItem` is an item, and therefore the widgets too.
struct ViewItemType {
  Q_GADGET
  QML_FOREIGN(quorix::qt::ViewItem)
  QML_ANONYMOUS
};

/// `SheetCloseReason.Swipe` and the others.
namespace SheetCloseReasons {
Q_NAMESPACE
QML_FOREIGN_NAMESPACE(quorix::qt)
QML_NAMED_ELEMENT(SheetCloseReason)
}  // namespace SheetCloseReasons

/// A sentence on how returns count. A tap opens a page with more, over the window.
///
///     InfoWidget { width: parent.width; locale: "es"; showBorder: true }
class InfoWidget : public quorix::qml::WidgetItem {
  Q_OBJECT
  QML_ELEMENT

  /// The library's own color by default, and after setting `undefined`.
  Q_PROPERTY(QColor backgroundColor MEMBER backgroundColor_ WRITE setBackgroundColor RESET
                 resetBackgroundColor NOTIFY backgroundColorChanged FINAL)
  /// A border of one point in the color of the text.
  Q_PROPERTY(bool showBorder MEMBER showBorder_ WRITE setShowBorder NOTIFY showBorderChanged FINAL)

 public:
  using WidgetItem::WidgetItem;

  void setBackgroundColor(const QColor& color) {
    replace(backgroundColor_, color, &InfoWidget::backgroundColorChanged);
  }
  void resetBackgroundColor() { setBackgroundColor({}); }
  void setShowBorder(bool show) { replace(showBorder_, show, &InfoWidget::showBorderChanged); }

 signals:
  void backgroundColorChanged();
  void showBorderChanged();

 protected:
  swiftui::View widget() const override;

 private:
  QColor backgroundColor_;  ///< invalid for the library's own color
  bool showBorder_ = false;
};

/// The score row of one shopper. A tap opens its detail sheet over the window. Shows nothing and
/// has no height if the client id or the token is empty, or the token cannot be read.
///
///     ScoreWidget { width: parent.width; clientId: "my-shop"; locale: "es"; token: shopper.token }
class ScoreWidget : public quorix::qml::WidgetItem {
  Q_OBJECT
  QML_ELEMENT

  /// The retailer's id.
  Q_PROPERTY(QString clientId MEMBER clientId_ WRITE setClientId RESET resetClientId NOTIFY
                 clientIdChanged FINAL)
  /// The shopper's token, as the widget service issued it. A new token with the same figures does
  /// not change the widget, and its sheet stays open.
  Q_PROPERTY(QString token MEMBER token_ WRITE setToken RESET resetToken NOTIFY tokenChanged FINAL)

 public:
  using WidgetItem::WidgetItem;

  void setClientId(const QString& id) { replace(clientId_, id, &ScoreWidget::clientIdChanged); }
  void resetClientId() { setClientId({}); }
  void setToken(const QString& token);
  void resetToken() { setToken({}); }

 signals:
  void clientIdChanged();
  void tokenChanged();

 protected:
  swiftui::View widget() const override;

 private:
  QString clientId_;
  QString token_;
};

/// Controls how all score widgets of the process get their texts, by `prefetch` and
/// `URLSession::setNetworkEnabled`. A property that is not set keeps the host's setting. Of several
/// objects, the latest change counts. Main thread.
///
///     TextService { prefetch: "es"; networkEnabled: consent.given }
class TextService : public QObject, public QQmlParserStatus {
  Q_OBJECT
  QML_ELEMENT
  Q_INTERFACES(QQmlParserStatus)

  /// The language whose texts are fetched in advance, for the first frame of the rows; empty for
  /// none.
  Q_PROPERTY(QString prefetch MEMBER prefetch_ NOTIFY prefetchChanged FINAL)
  /// If false, rows show prefetched or built-in texts.
  Q_PROPERTY(bool networkEnabled MEMBER networkEnabled_ WRITE setNetworkEnabled NOTIFY
                 networkEnabledChanged FINAL)

 public:
  void setNetworkEnabled(bool enabled);

 signals:
  void prefetchChanged();
  void networkEnabledChanged();

 private:
  void classBegin() override {}
  void componentComplete() override;
  void fetch() const;

  QString prefetch_;
  bool networkEnabled_ = true;
};

/// The insets that the device covers at the edges of a window, in points; calls `qt::setSafeArea`.
/// If QML sets one edge of a window, all four come from here (the others are 0), and none from Qt.
/// Main thread.
///
///     Window { WindowSafeArea.top: 47; WindowSafeArea.bottom: 34 }
class WindowSafeArea : public QObject {
  Q_OBJECT
  QML_ELEMENT
  QML_UNCREATABLE("Attach it to a window")
  QML_ATTACHED(quorix::qml::WindowSafeArea)

  Q_PROPERTY(int top MEMBER top_ NOTIFY changed FINAL)
  Q_PROPERTY(int left MEMBER left_ NOTIFY changed FINAL)
  Q_PROPERTY(int bottom MEMBER bottom_ NOTIFY changed FINAL)
  Q_PROPERTY(int right MEMBER right_ NOTIFY changed FINAL)

 public:
  explicit WindowSafeArea(QObject* window);

  static WindowSafeArea* qmlAttachedProperties(QObject* window) {
    return new WindowSafeArea(window);
  }

 signals:
  void changed();

 private:
  int top_ = 0;
  int left_ = 0;
  int bottom_ = 0;
  int right_ = 0;
};

}  // namespace quorix::qml
