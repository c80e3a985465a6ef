#pragma once

#include <string>
#include <string_view>

#include "platform/foundation/Export.h"

namespace quorix {

/// A handle for a face of the Tova brand's family, for a host's own styles. Registered like a
/// `QuorixFont`; Qt finds it as `QFont("Tova Sans Latin")`. Any thread.
///
///     #include <QuorixWidgets/score/ScoreWidgetStyle.h>
///     // The semi-bold face is registered along with the regular one.
///     ScoreWidgetStyle style{TovaFont::regular().name(), "TovaSansLatin-SemiBold"};
class QUORIX_EXPORT TovaFont {
 public:
  /// "TovaSansLatin-Regular". Also registers "TovaSansLatin-SemiBold"; use that by its name.
  static const TovaFont& regular();

  /// The face's PostScript name.
  const std::string& name() const { return name_; }

 private:
  explicit TovaFont(std::string_view name);
  std::string name_;
};

}  // namespace quorix
