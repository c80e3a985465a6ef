#pragma once

#include <QString>
#include <QStringList>

#include "qt/widgets/ViewWidget.h"

namespace quorix::examples {

class Shop;

/// One of the library's widgets, for the shop's current shopper, language and faces. When one of
/// these changes, shows a new widget from the public builder.
class WidgetPanel : public qt::ViewWidget {
  Q_OBJECT

 public:
  enum class Kind { scoreRow, info, uiInfo };

  WidgetPanel(Kind kind, Shop& shop, QWidget* parent = nullptr);

  Kind kind() const { return kind_; }
  /// Whether the widget has nothing to show.
  bool isEmpty() const { return sizeHint().height() == 0; }

 private:
  void follow();
  swiftui::View widget() const;

  Kind kind_;
  Shop& shop_;
  QStringList madeOf_;
};

}  // namespace quorix::examples
