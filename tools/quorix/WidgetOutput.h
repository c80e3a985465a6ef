#pragma once

#include <functional>
#include <string>

#include "platform/swiftui/View.h"
#include "tools/quorix/Command.h"
#include "tools/quorix/WidgetRequest.h"

namespace quorix::tool {

/// Lays out `view` and produces all forms that `request` asks for. Writes the picture to its file
/// and returns the rest for printing. `printTree` is called after the layout. Needs the engine;
/// main thread.
Outcome showWidget(const swiftui::View& view, const WidgetRequest& request,
                   const std::function<std::string()>& printTree);

}  // namespace quorix::tool
