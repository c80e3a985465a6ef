#pragma once

#include <QColor>

#include "qt/qml/WidgetItem.h"

namespace quorix::qml {

/// One sentence on how returns count; a tap opens a page that says more, over the window.
///
///     InfoWidget { width: parent.width; locale: "es"; showBorder: true }
class InfoWidget : public quorix::qml::WidgetItem {
  Q_OBJECT
  QML_ELEMENT

  /// The library's own until it is set, and again after `undefined`.
  Q_PROPERTY(QColor backgroundColor READ backgroundColor WRITE setBackgroundColor RESET
                 resetBackgroundColor NOTIFY backgroundColorChanged FINAL)
  /// A line of one point in the color of the text.
  Q_PROPERTY(bool showBorder READ showBorder WRITE setShowBorder NOTIFY showBorderChanged FINAL)

 public:
  using WidgetItem::WidgetItem;

  QColor backgroundColor() const { return backgroundColor_; }
  void setBackgroundColor(const QColor& color);
  void resetBackgroundColor() { setBackgroundColor({}); }
  bool showBorder() const { return showBorder_; }
  void setShowBorder(bool show);

 signals:
  void backgroundColorChanged();
  void showBorderChanged();

 protected:
  swiftui::View widget() const override;

 private:
  QColor backgroundColor_;  ///< invalid: the library's own
  bool showBorder_ = false;
};

}  // namespace quorix::qml
