#pragma once

#include <optional>
#include <string_view>

#include "platform/foundation/Bundle.h"
#include "platform/foundation/Export.h"
#include "platform/graphics/ColorSet.h"
#include "platform/graphics/ImageAsset.h"

namespace quorix::graphics {

// The assets of the catalogue "Assets.xcassets" in a bundle (null: the host's main bundle). The
// name of an asset is its folder's name without the extension, after the names of those enclosing
// folders that provide a namespace ("Fonts/Saans-Regular"). A missing or malformed asset is
// nothing.
//
// Colours and images are read once per bundle object: open a folder again to see edits on disk.
// Any thread.

/// The colour set `name`. A set without a dark value has the light one in both appearances.
///
///     auto grey = colorSet(bundle, "Grey1");
///     if (grey) paint(grey->resolve(Appearance::dark));
std::optional<ColorSet> colorSet(const foundation::Bundle::Ref& bundle, std::string_view name);

/// The image set `name`: its SVG files.
QUORIX_EXPORT std::optional<ImageAsset> imageSet(const foundation::Bundle::Ref& bundle,
                                                 std::string_view name);

/// The bytes of the data set `name`.
std::optional<foundation::Data> dataSet(const foundation::Bundle::Ref& bundle,
                                        std::string_view name);

}  // namespace quorix::graphics
