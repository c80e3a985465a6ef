#pragma once

#include <memory>
#include <string_view>
#include <tuple>

#include "QuorixWidgets/localization/LocalizationRepository.h"
#include "QuorixWidgets/score/ScoreWidgetViewModel.h"
#include "platform/foundation/Export.h"
#include "platform/swiftui/PresentationDetent.h"
#include "platform/swiftui/State.h"
#include "platform/swiftui/View.h"

namespace quorix {

/// The score row: an underlined title and the shopper's return fee. A tap opens the detail sheet.
struct ScoreWidgetView {
  static constexpr std::string_view typeName = "ScoreWidgetView";

  std::shared_ptr<ScoreWidgetViewModel> viewModel;
  std::shared_ptr<LocalizationRepository> localization;
  swiftui::State<bool> showSheet{false};

  auto states() const { return std::tie(showSheet); }
  auto observed() const { return std::tie(viewModel, localization); }
  QUORIX_EXPORT swiftui::View body() const;
};

/// The content of the detail sheet: the figures in larger type, and an explanation.
swiftui::View scoreWidgetSheet(const ScoreWidgetViewModel& model,
                               const LocalizationRepository& localization,
                               const swiftui::Binding<bool>& showSheet);

/// Presents a bottom sheet that is exactly as tall as its content. Until the content has been laid
/// out, the sheet has the platform's medium height.
struct AdaptiveSheetModifier {
  static constexpr std::string_view typeName = "AdaptiveSheetModifier";

  swiftui::Binding<bool> isPresented;
  swiftui::State<swiftui::PresentationDetents> presentationDetents;
  swiftui::View sheetContent;

  auto states() const { return std::tie(presentationDetents); }
  swiftui::View body(const swiftui::View& content) const;
};

}  // namespace quorix
