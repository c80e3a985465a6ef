#include "examples/shop/quick/UIInfoBox.h"

#include "QuorixWidgets/info/InfoWidgetBuilder.h"
#include "platform/swiftui/UIViewRepresentable.h"

namespace quorix::examples {

swiftui::View UIInfoBox::widget() const {
  return swiftui::hosting(InfoWidgetBuilder::buildUIKitInfoWidgetView(
      language(), {regularFace(), semiBoldFace(), std::nullopt, false}));
}

}  // namespace quorix::examples
