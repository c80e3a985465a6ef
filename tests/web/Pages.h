#pragma once

#include "examples/common/StandInPages.h"

namespace quorix::testing {

constexpr const char* kModules = "https://modules.quorix.example";
constexpr const char* kWidget = "https://widget.quorix.example";

/// One server for the whole process: the engine reads its address once.
examples::StandInPages& pages();

/// A page of one color that says that it is painted by asking for /here. `script` runs before. It
/// has some text: the engine keeps input from a page that shows nothing yet.
examples::StandInPages::Answer page(const QByteArray& color, const QByteArray& content = {},
                                    const QByteArray& script = {});

/// What pages reported by asking for /report?WHAT, the query decoded.
QStringList reports();

}  // namespace quorix::testing
