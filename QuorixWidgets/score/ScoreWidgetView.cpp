#include "QuorixWidgets/score/ScoreWidgetView.h"

#include "QuorixWidgets/localization/Assets.h"
#include "QuorixWidgets/score/ScoreWidgetViewModel.h"
#include "platform/swiftui/Elements.h"

namespace quorix {

using swiftui::PresentationDetent;
using swiftui::PresentationDetents;
using swiftui::Text;
using swiftui::View;

namespace {

/// Cached, because every row uses it.
const swiftui::Color& formerFeeColor() {
  static const swiftui::Color color(ColorResource::grey2());
  return color;
}

View compactRow(const ScoreWidgetViewModel& model, const ScoreWidgetTexts& texts) {
  const auto emphasised = [&](const std::string& fee) {
    return View(Text::verbatim(fee))
        .font(model.widgetSemiBoldFont())
        .foregroundColor(Color::defaultFontColor());
  };
  const View title = View(texts.verbatim("returns", "title"))
                         .textCase(swiftui::TextCase::uppercase)
                         .underline()
                         .font(model.widgetRegularFont())
                         .foregroundColor(Color::defaultFontColor());
  const View fees = model.hasDiscount
                        ? swiftui::Group({emphasised(model.reducedReturnFee),
                                          View(Text::verbatim(model.baseReturnFee.get()))
                                              .font(model.widgetRegularFont())
                                              .foregroundColor(formerFeeColor())
                                              .strikethrough()})
                        : emphasised(model.baseReturnFee);
  return swiftui::HStack(layout::VerticalAlignment::center, 12,
                         {title, swiftui::Spacer(), swiftui::Conditional(model.hasDiscount, fees)});
}

}  // namespace

View ScoreWidgetView::body() const {
  const ScoreWidgetTexts texts(*viewModel, *localization);
  const auto sheetFlag = showSheet.binding();
  const foundation::Action toggleSheet = [sheetFlag] { sheetFlag.toggle(); };
  const auto sheetContent = [model = viewModel, strings = localization, sheetFlag] {
    return scoreWidgetSheet(*model, *strings, sheetFlag);
  };
  return compactRow(*viewModel, texts)
      .accessibilityElement(swiftui::AccessibilityChildren::ignore)
      .accessibilityAddTraits(swiftui::AccessibilityTrait::isButton)
      .accessibilityLabel(texts.rowLabel())
      .accessibilityHint(texts.verbatim("labels", "hint"))
      .accessibilityAction(toggleSheet)
      .onTapGesture(toggleSheet)
      .task(swiftui::TaskPriority::userInitiated, [strings = localization] { strings->update(); })
      .modifier(AdaptiveSheetModifier{
          sheetFlag,
          swiftui::State(PresentationDetents{PresentationDetent::medium()}),
          swiftui::Lazy(sheetContent),
      });
}

}  // namespace quorix
