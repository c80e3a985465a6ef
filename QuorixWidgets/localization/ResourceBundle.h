#pragma once

#include <string_view>

#include "platform/foundation/Bundle.h"
#include "platform/foundation/Export.h"

namespace quorix {

/// The identifier under which the library's resource bundle is registered.
inline constexpr std::string_view kResourceBundleIdentifier = "example.quorix.QuorixWidgets";

/// Lays `theme` over the library's own resources: its texts, colors, images, interface file and
/// faces replace the library's. Null removes the theme. Main thread, before the first widget is
/// made: colors, faces and symbols that have been read are kept.
///
///     // The folder holds Assets.xcassets/Grey1.colorset, for example.
///     setTheme(foundation::Bundle::open("/usr/share/shop/theme"));
QUORIX_EXPORT void setTheme(foundation::Bundle::Ref theme);

/// The library's resource bundle by its identifier, looked up at each call; null if the host has
/// removed the registration. The first call registers the embedded files, unless a theme is set or
/// the host has registered a bundle of its own. Any thread.
QUORIX_EXPORT foundation::Bundle::Ref libraryBundle();

/// The bundle of the library's asset symbols: the files that are compiled into the library, with
/// the theme over them. A bundle that the host registers under the identifier does not count here.
/// Never null, and the same after the first call. Any thread.
QUORIX_EXPORT const foundation::Bundle::Ref& resourceBundle();

}  // namespace quorix
