#pragma once

#include <QImage>
#include <string>

#include "qt/StillScene.h"
#include "tools/quorix/gallery/Matrix.h"

namespace quorix::gallery {

/// A cell of the matrix, laid out.
struct ShownCell {
  qt::StillScene still;
  std::string tree;  ///< the view tree as text
};

/// Lays out `cell` for `scale` device pixels a point, with the texts that are compiled in. Turns
/// the network off. Needs an application object; main thread.
///
///     for (const Cell& cell : cells()) picture(render(cell, 2), 2).save(...);
ShownCell render(const Cell& cell, double scale);

/// The picture of `shown`. For a window with a sheet, the sheet and a little of the window above
/// it.
QImage picture(const ShownCell& shown, double scale);

/// Runs a turn of the main queue, which sets the title of an imperative widget.
void takeTurn();

}  // namespace quorix::gallery
