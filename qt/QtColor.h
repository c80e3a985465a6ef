#pragma once

#include <QColor>

#include "platform/graphics/RGBA.h"

namespace quorix::qt {

inline QColor toQColor(graphics::RGBA color) {
  return {color.red, color.green, color.blue, color.alpha};
}

}  // namespace quorix::qt
