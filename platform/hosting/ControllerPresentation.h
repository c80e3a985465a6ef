#pragma once

#include <memory>

#include "platform/foundation/Export.h"
#include "platform/swiftui/View.h"
#include "platform/uikit/UIViewController.h"

namespace quorix::hosting {

/// The sheet that shows the presented `controller`: closing it dismisses the controller. Main
/// thread.
QUORIX_EXPORT swiftui::Presentation controllerPresentation(
    const std::shared_ptr<uikit::UIViewController>& controller);

}  // namespace quorix::hosting
