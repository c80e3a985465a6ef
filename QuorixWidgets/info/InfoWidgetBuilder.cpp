#include "QuorixWidgets/info/InfoWidgetBuilder.h"

#include <string>

#include "QuorixWidgets/info/InfoWidgetView.h"
#include "QuorixWidgets/info/InfoWidgetViewModel.h"
#include "QuorixWidgets/info/UIInfoWidget.h"

namespace quorix {

swiftui::View InfoWidgetBuilder::buildSwiftUIInfoWidgetView(std::string_view locale,
                                                            const InfoWidgetStyle& style) {
  return InfoWidgetView{std::make_shared<InfoWidgetViewModel>(
      std::nullopt, std::string(locale),
      SwiftUIStyleConfiguration{style.regularFont, style.semiBoldFont, style.backgroundColor,
                                style.showBorder})};
}

std::shared_ptr<uikit::UIView> InfoWidgetBuilder::buildUIKitInfoWidgetView(
    std::string_view locale, const InfoWidgetStyle& style) {
  return UIInfoWidget::make(std::make_shared<UIInfoWidgetViewModel>(
      std::nullopt, std::string(locale),
      UIKitStyleConfiguration{style.regularFont, style.semiBoldFont, nullptr, false}));
}

}  // namespace quorix
