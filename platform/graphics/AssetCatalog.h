#pragma once

#include <optional>
#include <string_view>

#include "platform/foundation/Bundle.h"
#include "platform/foundation/Export.h"
#include "platform/graphics/RGBA.h"

namespace quorix::graphics {

/// A named image: SVG files and how to draw them. Cheap to copy.
struct ImageAsset {
  foundation::Data light;                ///< an SVG file
  std::optional<foundation::Data> dark;  ///< the picture for dark surfaces, if it differs
  bool isTemplate = false;               ///< drawn in the foreground color
  double width = 0;                      ///< natural size in points, above 0
  double height = 0;

  const foundation::Data& svg(Appearance appearance) const {
    return appearance == Appearance::dark && dark ? *dark : light;
  }
};

// The assets of the catalog "Assets.xcassets" in a bundle (null: the host's main bundle). The name
// of an asset is its folder's name without the extension. The names of enclosing folders come
// before it if they provide a namespace ("Fonts/Saans-Regular"). Absent for a missing or malformed
// asset.
//
// Colors and images of the latest bundles are cached. Open a folder again to see edits on disk. Any
// thread.

/// The color set `name`. Without a dark value, the light one applies to both appearances.
///
///     RGBA darkGrey(const foundation::Bundle::Ref& bundle) {
///       return colorSet(bundle, "Grey1").value().resolve(Appearance::dark);
///     }
QUORIX_EXPORT std::optional<ColorSet> colorSet(const foundation::Bundle::Ref& bundle,
                                               std::string_view name);

/// The image set `name`: its SVG files, to be drawn into the frame of a `render::ImageItem`.
///
///     foundation::Data crossOf(const foundation::Bundle::Ref& bundle) {
///       return imageSet(bundle, "close").value().svg(Appearance::light);
///     }
QUORIX_EXPORT std::optional<ImageAsset> imageSet(const foundation::Bundle::Ref& bundle,
                                                 std::string_view name);

/// The bytes of the data set `name`.
QUORIX_EXPORT std::optional<foundation::Data> dataSet(const foundation::Bundle::Ref& bundle,
                                                      std::string_view name);

}  // namespace quorix::graphics
