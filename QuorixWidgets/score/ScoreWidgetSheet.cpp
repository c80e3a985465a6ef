#include "QuorixWidgets/score/ScoreWidgetView.h"

#include "QuorixWidgets/localization/Assets.h"
#include "QuorixWidgets/localization/ResourceBundle.h"
#include "QuorixWidgets/score/ScoreWidgetViewModel.h"
#include "platform/swiftui/Elements.h"

namespace quorix {

using swiftui::PresentationDetent;
using swiftui::PresentationDetents;

namespace {

using layout::EdgeInsets;
using layout::HorizontalAlignment;
using layout::VerticalAlignment;
using swiftui::HStack;
using swiftui::Image;
using swiftui::Spacer;
using swiftui::Text;
using swiftui::View;
using swiftui::VStack;

View header(const ScoreWidgetViewModel& model, const ScoreWidgetTexts& texts,
            const swiftui::Binding<bool>& showSheet) {
  const View title = View(texts.verbatim("returns", "title"))
                         .textCase(swiftui::TextCase::uppercase)
                         .font(model.widgetRegularFont())
                         .foregroundColor(Color::defaultFontColor());
  const View closeButton = Image("close", libraryBundle())
                               .foregroundColor(swiftui::Color::black())
                               .padding(EdgeInsets{.top = 22})
                               .onTapGesture([showSheet] { showSheet.toggle(); })
                               .accessibilityLabel(texts.verbatim("actions", "close"));
  return HStack(VerticalAlignment::center, std::nullopt, {title})
      .padding(24)
      .frameMaxWidthInfinity()
      .overlay({HorizontalAlignment::trailing, VerticalAlignment::top}, closeButton);
}

View feeRow(const ScoreWidgetViewModel& model, const ScoreWidgetTexts& texts) {
  const auto fee = [&](const std::string& text) {
    return View(Text::verbatim(text)).font(model.overlayRegularFont());
  };
  const View label = View(texts.verbatim("returns", "fee"))
                         .font(model.overlayRegularFont())
                         .foregroundColor(Color::defaultFontColor())
                         .accessibilityAddTraits(swiftui::AccessibilityTrait::isHeader);
  const View fees =
      model.hasDiscount
          ? swiftui::Group(
                {fee(model.reducedReturnFee).foregroundColor(Color::defaultFontColor()),
                 fee(model.baseReturnFee).foregroundColor(ColorResource::grey2()).strikethrough()})
          : fee(model.baseReturnFee).foregroundColor(Color::defaultFontColor());
  return HStack(VerticalAlignment::center, 12,
                {label, Spacer(), swiftui::Conditional(model.hasDiscount, fees)})
      .padding(EdgeInsets{.bottom = 4})
      .accessibilityElement(swiftui::AccessibilityChildren::ignore)
      .accessibilityLabel(texts.feeLabel());
}

View rateRow(const ScoreWidgetViewModel& model, const ScoreWidgetTexts& texts) {
  const auto styled = [&](const Text& text) {
    return View(text).font(model.overlayRegularFont()).foregroundColor(Color::defaultFontColor());
  };
  return HStack(VerticalAlignment::center, 12,
                {styled(texts.verbatim("returns", "rate")), Spacer(),
                 styled(Text::verbatim(model.returnRate.get()))})
      .accessibilityElement(swiftui::AccessibilityChildren::ignore)
      .accessibilityLabel(texts.rateLabel());
}

View logo(const ScoreWidgetTexts& texts) {
  return Image("logo", libraryBundle())
      .resizable()
      .frame(46, 10)
      .foregroundColor(ColorResource::grey1())
      .padding(EdgeInsets{.top = 32})
      .padding(EdgeInsets{.bottom = 24})
      .accessibilityHint(texts.verbatim("labels", "quorix_logo"));
}

}  // namespace

View scoreWidgetSheet(const ScoreWidgetViewModel& model, const LocalizationRepository& localization,
                      const swiftui::Binding<bool>& showSheet) {
  const ScoreWidgetTexts texts(model, localization);
  const View divider =
      swiftui::Divider().padding(EdgeInsets{.top = 24, .bottom = 24}).accessibilityHidden(true);
  const View disclaimer = View(texts.verbatim("returns", "disclaimer"))
                              .font(model.overlayRegularFont())
                              .foregroundColor(ColorResource::grey1())
                              .fixedSize(false, true);
  return VStack(HorizontalAlignment::center, 0,
                {header(model, texts, showSheet), feeRow(model, texts), rateRow(model, texts),
                 divider, disclaimer, logo(texts)})
      .padding(EdgeInsets{.leading = 16, .trailing = 16});
}

View AdaptiveSheetModifier::body(const View& content) const {
  const auto detents = presentationDetents.binding();
  const auto follow = [detents](layout::Size size) {
    detents.set(PresentationDetents{PresentationDetent::height(size.height)});
  };
  return content.sheet(isPresented,
                       sheetContent.presentationDetents(detents.get()).onGeometryChange(follow));
}

}  // namespace quorix
