#include "QuorixWidgets/info/InfoWidgetView.h"

#include "QuorixWidgets/localization/Assets.h"
#include "QuorixWidgets/localization/ResourceBundle.h"
#include "QuorixWidgets/localization/Strings.h"
#include "QuorixWidgets/overlay/WebView.h"
#include "platform/graphics/AssetCatalog.h"
#include "platform/swiftui/Elements.h"

namespace quorix {
namespace {

using swiftui::Conditional;
using swiftui::Text;
using swiftui::View;

View title(const InfoWidgetViewModel& model) {
  const SwiftUIStyleConfiguration& style = model.styleConfiguration;
  const bool facesOfHost = style.regularFont && style.semiBoldFont;
  // Registers the semi-bold face so that bold text in the library's face can use it.
  if (!facesOfHost && !model.boldStart().empty()) QuorixFont::medium();
  const auto personal = model.getTitle();
  const Text text = personal ? personal->font(model.regularFont()) : model.getInfoTitle();
  return Conditional(personal.has_value(), text.foregroundColor(Color::defaultFontColor()));
}

/// The first color wins; white only appears in the printed tree.
View link(const InfoWidgetViewModel& model) {
  return Text::verbatim(localized("widget-read-more", model.locale))
      .font(model.regularFont())
      .foregroundColor(Color::defaultFontColor())
      .underline()
      .foregroundColor(swiftui::Color::white());
}

/// An empty view if the image is missing.
View logo() {
  const auto bundle = libraryBundle();
  if (!graphics::imageSet(bundle, "poweredBy")) return {};
  return swiftui::Image("poweredBy", bundle).resizable().scaledToFit().frame(std::nullopt, 13);
}

View filledBox(const InfoWidgetViewModel& model) {
  const View linkLine = swiftui::HStack(layout::VerticalAlignment::center, std::nullopt,
                                        {link(model), swiftui::Spacer(), logo()});
  return swiftui::VStack(layout::HorizontalAlignment::leading, 16, {title(model), linkLine})
      .padding(16)
      .background(model.styleConfiguration.backgroundColor.value_or(Color::widgetBackground()));
}

}  // namespace

View InfoWidgetView::body() const {
  const View box = filledBox(*viewModel);
  const bool border = viewModel->styleConfiguration.showBorder;
  const auto isPresented = showSheetPresented.binding();
  return Conditional(border, border ? box.border(Color::defaultFontColor(), 1) : box)
      .onTapGesture([isPresented] { isPresented.toggle(); })
      .sheet(isPresented, WebView{isPresented, viewModel->name, std::nullopt, viewModel->locale});
}

}  // namespace quorix
