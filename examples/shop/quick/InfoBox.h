#pragma once

#include "examples/shop/quick/WidgetItem.h"

namespace quorix::examples {

/// The info widget as a QML element, in its declarative form.
///
///     InfoBox { width: parent.width; locale: "en" }
class InfoBox : public WidgetItem {
  Q_OBJECT

 public:
  using WidgetItem::WidgetItem;

 protected:
  swiftui::View widget() const override;
};

}  // namespace quorix::examples
