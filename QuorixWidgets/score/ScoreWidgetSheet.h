#pragma once

#include <memory>

#include "QuorixWidgets/localization/LocalizationRepository.h"
#include "QuorixWidgets/score/ScoreWidgetViewModel.h"
#include "platform/swiftui/State.h"
#include "platform/swiftui/View.h"

namespace quorix {

/// The content of the detail sheet: the figures again, larger, with what they mean.
swiftui::View scoreWidgetSheet(const ScoreWidgetViewModel& model,
                               const LocalizationRepository& localization,
                               const swiftui::Binding<bool>& showSheet);

}  // namespace quorix
