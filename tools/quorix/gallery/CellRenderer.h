#pragma once

#include <QImage>
#include <map>
#include <memory>
#include <string>
#include <string_view>

#include "QuorixWidgets/localization/Translations.h"
#include "platform/swiftui/View.h"
#include "qt/StillScene.h"
#include "tools/quorix/gallery/Matrix.h"

namespace quorix::gallery {

/// Runs a turn of the main queue, which sets the title of an imperative widget.
void takeTurn();

/// Renders cells of the matrix from the texts that are compiled in. Turns the network off. Needs an
/// application object; main thread.
///
///     const CellRenderer renderer;
///     for (const Cell& cell : cells()) picture(renderer.render(cell, 2), 2).save(...);
class CellRenderer {
 public:
  struct Shown {
    qt::StillScene still;
    std::string tree;  ///< the view tree as text
  };

  CellRenderer();

  /// Lays out the cell for `scale` device pixels a point.
  Shown render(const Cell& cell, double scale) const;

 private:
  swiftui::View scoreWidget(const Cell& cell) const;

  std::map<std::string_view, std::shared_ptr<const TranslationTable>> tables_;
};

/// The picture of `shown`. For a window with a sheet, the sheet and a little of the window above
/// it.
QImage picture(const CellRenderer::Shown& shown, double scale);

}  // namespace quorix::gallery
