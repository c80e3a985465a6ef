#pragma once

#include <functional>
#include <string>

#include "platform/swiftui/View.h"
#include "tools/quorix/Command.h"
#include "tools/quorix/WidgetRequest.h"

namespace quorix::tool {

/// Lays out `view` and gives every form that `request` asks for: the picture into its file, the
/// rest as what to print. `printTree` is called once all is laid out. Needs the engine; main
/// thread.
Outcome showWidget(const swiftui::View& view, const WidgetRequest& request,
                   const std::function<std::string()>& printTree);

}  // namespace quorix::tool
