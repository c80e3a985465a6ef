#pragma once

#include <QColor>

namespace quorix::bench {

// The colors of our widgets in the light appearance, for the peers.

QColor inkColor();
QColor fadedColor();
QColor groundColor();

}  // namespace quorix::bench
