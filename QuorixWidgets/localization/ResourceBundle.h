#pragma once

#include <string_view>

#include "platform/foundation/Bundle.h"
#include "platform/foundation/Export.h"

namespace quorix {

/// The identifier under which the library's resource bundle is registered.
inline constexpr std::string_view kResourceBundleIdentifier = "example.quorix.QuorixWidgets";

/// Combines `theme` with the library's own resources. Its texts, colors, images, interface file and
/// faces replace the library's. Null removes the theme. Main thread. Call it before the first
/// widget is made: colors, faces and symbols are cached at their first read.
///
///     // The folder holds Assets.xcassets/Grey1.colorset, for example.
///     setTheme(foundation::Bundle::open("/usr/share/shop/theme"));
QUORIX_EXPORT void setTheme(foundation::Bundle::Ref theme);

/// The library's resource bundle, looked up by its identifier at each call; null if the host has
/// removed the registration. The first call registers the embedded files, unless a theme is set or
/// the host has registered another bundle. Any thread.
QUORIX_EXPORT foundation::Bundle::Ref libraryBundle();

/// The bundle of the library's asset symbols: the files that are compiled into the library,
/// combined with the theme. Ignores a bundle that the host registers under the identifier. Never
/// null, and the same after the first call. Any thread.
QUORIX_EXPORT const foundation::Bundle::Ref& resourceBundle();

}  // namespace quorix
