#pragma once

#include <string>
#include <string_view>

#include "platform/foundation/Export.h"

namespace quorix {

/// A handle for a face of the library's own family. The first read of a constant registers its face
/// with the font manager and with Qt, once per process. After that, `QFont("Saans")` in C++ and
/// `font.family: "Saans"` in QML find it. If the application object does not exist yet, Qt gets the
/// face when it is made. If the constant is read on another thread than the main thread, Qt gets
/// the face on the main thread's next turn.
///
/// A face with this name on the user's desktop is ignored. A face that the host has registered
/// replaces the library's. If the library was built without the face, the process stops with
/// "Failed to register font: ...". Any thread.
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
