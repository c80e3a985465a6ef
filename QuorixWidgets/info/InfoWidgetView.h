#pragma once

#include <memory>
#include <string_view>
#include <tuple>

#include "QuorixWidgets/info/InfoWidgetViewModel.h"
#include "platform/foundation/Export.h"
#include "platform/swiftui/State.h"
#include "platform/swiftui/View.h"

namespace quorix {

/// The declarative info widget: a title, and below it a link and a small logo. A tap anywhere opens
/// the web overlay in a sheet.
struct InfoWidgetView {
  static constexpr std::string_view typeName = "InfoWidgetView";

  std::shared_ptr<InfoWidgetViewModel> viewModel;
  swiftui::State<bool> showSheetPresented{false};

  auto states() const { return std::tie(showSheetPresented); }
  auto observed() const { return std::tie(viewModel); }
  QUORIX_EXPORT swiftui::View body() const;
};

}  // namespace quorix
