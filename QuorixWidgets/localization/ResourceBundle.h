#pragma once

#include <string_view>

#include "platform/foundation/Bundle.h"
#include "platform/foundation/Export.h"

namespace quorix {

/// What the library's resource bundle is registered under.
inline constexpr std::string_view kResourceBundleIdentifier = "example.quorix.QuorixWidgets";

/// The library's resource bundle by its identifier, looked up at each call; null when the host took
/// the registration away. The first call registers the embedded files, unless the host (for live
/// edits, say) registered a bundle of its own before. Any thread.
QUORIX_EXPORT foundation::Bundle::Ref libraryBundle();

/// The bundle of the library's generated asset symbols: what was registered at the first call, or
/// else the embedded files; never null, and the same ever after. Any thread.
const foundation::Bundle::Ref& resourceBundle();

}  // namespace quorix
