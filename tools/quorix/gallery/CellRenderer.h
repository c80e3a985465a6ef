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

/// Shows cells of the matrix from what is compiled in: nothing is fetched as long as one lives.
/// Needs an application object; main thread.
///
///     const CellRenderer renderer;
///     for (const Cell& cell : cells()) picture(renderer.render(cell, 2), 2).save(...);
class CellRenderer {
 public:
  struct Shown {
    qt::StillScene still;
    std::string tree;  ///< in words
  };

  CellRenderer();

  /// The cell laid out for `scale` device pixels a point.
  Shown render(const Cell& cell, double scale) const;

 private:
  swiftui::View scoreWidget(const Cell& cell) const;

  std::map<std::string_view, std::shared_ptr<const TranslationTable>> tables_;
  std::shared_ptr<void> offline_;
};

/// What a shopper sees of `shown`; of a window with a sheet, the sheet and a little above it.
QImage picture(const CellRenderer::Shown& shown, double scale);

}  // namespace quorix::gallery
