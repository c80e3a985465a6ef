#include "QuorixWidgets/overlay/WebView.h"

#include "QuorixWidgets/localization/Color.h"
#include "QuorixWidgets/localization/Font.h"
#include "QuorixWidgets/localization/ImageResource.h"
#include "QuorixWidgets/localization/LocalizedString.h"
#include "QuorixWidgets/overlay/WebViewControllerRepresentable.h"
#include "platform/swiftui/Elements.h"
#include "platform/swiftui/UIViewControllerRepresentable.h"

namespace quorix {
namespace {

using layout::Edges;
using swiftui::View;

View heading(const std::string& userName, const std::string& locale) {
  const auto words =
      swiftui::Text::verbatim(localized("webview-overlay-title", locale, {userName}));
  return View(words
                  .font(Font::Quorix::relative(QuorixFont::regular(), 16,
                                               swiftui::TextStyle::headline))
                  .fontWeight(swiftui::FontWeight::medium)
                  .foregroundColor(Color::defaultFontColor()))
      .frameMaxWidthInfinity()
      .padding(Edges::vertical(), 24);
}

}  // namespace

/// The cross. It has no label: the image's name is spoken, in the user's own language.
struct WebView::CloseButton {
  static constexpr std::string_view typeName = "CloseButton";

  swiftui::Binding<bool> showSheetPresented;

  View body() const {
    const View cross = swiftui::Image(ImageResource::close())
                           .frame(48, 48)
                           .padding(Edges{.trailing = true}, 0)
                           .padding(Edges{.top = true}, 8);
    return swiftui::Button([isPresented = showSheetPresented] { isPresented.toggle(); }, cross);
  }
};

View WebView::body() const {
  const View page = swiftui::represent(WebViewControllerRepresentable{userName, token, locale});
  const View title = userName ? heading(*userName, locale) : View();
  return swiftui::VStack(layout::HorizontalAlignment::center, std::nullopt,
                         {swiftui::Conditional(userName.has_value(), title), page})
      .overlay({layout::HorizontalAlignment::trailing, layout::VerticalAlignment::top},
               CloseButton{showSheetPresented})
      .edgesIgnoringSafeArea(Edges{.bottom = true})
      .background(Color::overlayBackgrounColor(), Edges::all());
}

}  // namespace quorix
