#include "QuorixWidgets/overlay/WebView.h"

#include "QuorixWidgets/localization/Assets.h"
#include "QuorixWidgets/localization/Font.h"
#include "QuorixWidgets/localization/Strings.h"
#include "QuorixWidgets/overlay/WebViewController.h"
#include "platform/swiftui/Elements.h"
#include "platform/swiftui/UIViewRepresentable.h"

namespace quorix {
namespace {

using layout::Edges;
using swiftui::View;

/// The overlay's page in a declarative view. The controller is made once and keeps its first
/// values, so a page that is shown is not loaded again.
struct WebViewControllerRepresentable {
  static constexpr std::string_view typeName = "WebViewControllerRepresentable";

  std::optional<std::string> userName;
  std::optional<std::string> token;
  std::string locale;

  std::shared_ptr<WebViewController> makeUIViewController() const {
    auto controller = std::make_shared<WebViewController>();
    controller->userName = userName;
    controller->token = token;
    controller->locale = locale;
    return controller;
  }
  void updateUIViewController(WebViewController&) const {}
};

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

/// The cross. It has no label, so screen readers say the image's name in the user's language.
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
