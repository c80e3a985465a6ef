#pragma once

#include <string>
#include <string_view>

#include "platform/foundation/Export.h"

namespace quorix {

/// A handle on a face of the Tova brand's family, for a host's own styles. As with `QuorixFont`,
/// the first read registers, once in a process, and a failure stops the process. Any thread.
///
///     style.regularFont = TovaFont::regular().name();
///     style.semiBoldFont = "TovaSansLatin-SemiBold";  // registered along with the regular face
class QUORIX_EXPORT TovaFont {
 public:
  /// "TovaSansLatin-Regular". Registers "TovaSansLatin-SemiBold" as well, to be used by its name.
  static const TovaFont& regular();

  /// The face's PostScript name.
  const std::string& name() const { return name_; }

 private:
  explicit TovaFont(std::string_view name);
  std::string name_;
};

}  // namespace quorix
