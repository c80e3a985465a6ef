#pragma once

#include "qml/WidgetItem.h"

namespace quorix::examples {

/// The imperative info widget as a QML element. The library leaves this to hosts.
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
