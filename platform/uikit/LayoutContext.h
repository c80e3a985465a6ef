#pragma once

#include "platform/render/Display.h"
#include "platform/text/TextEngine.h"

namespace quorix::uikit {

/// The input of layout and drawing besides the views.
struct LayoutContext {
  text::TextEngine& engine;
  render::Display display;
};

}  // namespace quorix::uikit
