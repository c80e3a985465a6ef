#pragma once

#include "examples/shop/quick/WidgetItem.h"

namespace quorix::examples {

/// The info widget as a QML element, in its imperative form.
///
///     UIInfoBox { width: parent.width; locale: "en" }
class UIInfoBox : public WidgetItem {
  Q_OBJECT

 public:
  using WidgetItem::WidgetItem;

 protected:
  swiftui::View widget() const override;
};

}  // namespace quorix::examples
