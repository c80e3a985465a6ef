#include "examples/shop/quick/InfoBox.h"

#include "QuorixWidgets/info/InfoWidgetBuilder.h"

namespace quorix::examples {

swiftui::View InfoBox::widget() const {
  return InfoWidgetBuilder::buildSwiftUIInfoWidgetView(
      locale(), {regularFace(), semiBoldFace(), std::nullopt, false});
}

}  // namespace quorix::examples
