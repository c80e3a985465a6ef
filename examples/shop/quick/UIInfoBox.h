#pragma once

#include "qml/WidgetItem.h"

namespace quorix::examples {

/// The info widget in its imperative form as a QML element, which the library leaves to its hosts.
///
///     UIInfoBox { width: parent.width; locale: "en" }
class UIInfoBox : public qml::WidgetItem {
  Q_OBJECT

 public:
  using WidgetItem::WidgetItem;

 protected:
  swiftui::View widget() const override;
};

}  // namespace quorix::examples
