#pragma once

#include <string>
#include <string_view>

#include "platform/foundation/Export.h"

namespace quorix {

/// A handle on a face of the library's own family. The first read of a constant registers its face
/// with the font manager and with Qt, once per process: from then on `QFont("Saans")` in C++ and
/// `font.family: "Saans"` in QML find it. If the constant is read before the application object is
/// made, Qt gets the face when it is made; if it is read on another thread than the main one, Qt
/// gets the face on the main thread's next turn.
///
/// A face of the same name that is installed on the user's desktop is ignored. One that the host
/// has registered itself is used instead of the library's. If the library was built without the
/// face, the process stops with "Failed to register font: ...". Any thread.
///
///     #include <QuorixWidgets/localization/Font.h>
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
