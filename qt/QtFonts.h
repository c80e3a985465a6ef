#pragma once

#include <QObject>
#include <cstddef>
#include <functional>
#include <string>
#include <string_view>
#include <unordered_map>

#include "platform/foundation/Export.h"
#include "platform/text/AttributedText.h"
#include "qt/ShapingFont.h"

namespace quorix::qt {

/// Finds Qt's fonts for the names that texts carry: a face of the font manager, a family, a
/// PostScript name such as "OpenSans-SemiBold", and the system's font for any other. Main thread.
class QtFonts {
 public:
  static QtFonts& shared();

  QtFonts();
  ~QtFonts();
  QtFonts(const QtFonts&) = delete;
  QtFonts& operator=(const QtFonts&) = delete;

  /// Tells the font manager which faces Qt has on its own. Again is harmless.
  QUORIX_EXPORT static void installSystemLookup();

  /// Whether Qt has a face of that family or PostScript name. Any thread; false without an
  /// application object.
  static bool systemKnows(std::string_view name);

  /// The face of `font` in `pixels`. The reference holds until `refresh` returns true.
  const ShapingFont& find(const text::ResolvedFont& font, int pixels = ShapingFont::pixels);

  /// Forgets the fonts found when faces have come or gone since the last call (or the fonts have
  /// become too many), and says so.
  bool refresh();

 private:
  struct Key {
    std::string name;
    swiftui::FontWeight weight;
    int pixels;
    bool operator==(const Key&) const = default;
  };
  struct Hash {
    std::size_t operator()(const Key& key) const { return std::hash<std::string>{}(key.name); }
  };

  const QFont& face(const std::string& name);

  std::unordered_map<std::string, QFont> installed_;
  std::unordered_map<Key, ShapingFont, Hash> fonts_;
  std::size_t generation_ = 0;
  bool databaseChanged_ = false;
  QMetaObject::Connection connection_;
};

}  // namespace quorix::qt
