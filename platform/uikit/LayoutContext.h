#pragma once

#include "platform/render/Display.h"
#include "platform/text/TextEngine.h"

namespace quorix::uikit {

/// What sizes and looks depend on besides the views themselves.
struct LayoutContext {
  text::TextEngine& engine;
  render::Display display;
};

}  // namespace quorix::uikit
