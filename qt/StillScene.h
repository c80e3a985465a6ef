#pragma once

#include "platform/hosting/StillScene.h"
#include "qt/text/QtTextEngine.h"

namespace quorix::qt {

using hosting::StillScene;

/// `hosting::stillScene` with Qt's text engine. Needs a QGuiApplication.
inline StillScene stillScene(const swiftui::View& view, const hosting::StillOptions& options = {}) {
  return hosting::stillScene(QtTextEngine::shared(), view, options);
}

}  // namespace quorix::qt
