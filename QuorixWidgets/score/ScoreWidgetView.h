#pragma once

#include <memory>
#include <string_view>
#include <tuple>

#include "QuorixWidgets/localization/LocalizationRepository.h"
#include "QuorixWidgets/score/ScoreWidgetViewModel.h"
#include "platform/foundation/Export.h"
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

}  // namespace quorix
