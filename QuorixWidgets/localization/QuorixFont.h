#pragma once

#include <string>
#include <string_view>

#include "platform/foundation/Export.h"

namespace quorix {

/// A handle on a face of the library's own family. To hold one is to know that the face is
/// registered: the first read of a constant registers its face, which happens once in a process.
///
/// A face that cannot be registered (a broken build of the library, or a host that has registered a
/// face of the same name) stops the process with "Failed to register font: ...". Any thread.
///
///     auto title = Font::Quorix::relative(QuorixFont::medium(), 16, swiftui::TextStyle::headline);
class QUORIX_EXPORT QuorixFont {
 public:
  /// "Saans-Regular".
  static const QuorixFont& regular();
  /// "Saans-Medium".
  static const QuorixFont& medium();

  /// The face's PostScript name.
  const std::string& name() const { return name_; }

 private:
  explicit QuorixFont(std::string_view name);
  std::string name_;
};

}  // namespace quorix
