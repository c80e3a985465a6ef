#pragma once

#include <QFont>
#include <QObject>
#include <QStringList>
#include <algorithm>
#include <cstddef>
#include <optional>
#include <set>
#include <string>
#include <string_view>
#include <unordered_map>

#include "platform/foundation/Cache.h"
#include "platform/foundation/Export.h"
#include "platform/graphics/FontManager.h"
#include "platform/text/AttributedText.h"

namespace quorix::qt {

/// Adds the font manager's faces to Qt: each when it is registered, and those registered before the
/// application object when that is made. Main thread.
class RegisteredFaces {
 public:
  static RegisteredFaces& shared();

  RegisteredFaces() = default;
  RegisteredFaces(const RegisteredFaces&) = delete;
  RegisteredFaces& operator=(const RegisteredFaces&) = delete;

  /// The registered face `name`, added to Qt on the first call; null when there is none, or Qt
  /// cannot read it.
  const QFont* find(const std::string& name);

  /// Adds every registered face to Qt.
  void loadAll();

  /// Whether the `fontDatabaseChanged` being emitted is about these faces alone.
  bool isAnnouncing() const { return announcing_; }

 private:
  std::optional<QFont> load(const graphics::GraphicsFont& face);
  bool isOfHost(const QString& family, const QString& style) const;
  void announce();

  std::unordered_map<std::string, QFont> faces_;
  std::set<int> ids_;        ///< of our faces among Qt's application fonts
  QStringList ownFamilies_;  ///< of which all faces are ours
  bool announced_ = true;
  bool announcing_ = false;
};

/// A face as texts are shaped in it, and where its decorations go.
///
/// Qt rounds every font to whole pixels, at which a size of 15.7 points would lose its fraction.
/// All sizes of text are therefore shaped in one pixel size, and scaled when they are drawn:
/// without hinting a face has the same shape at every size. So measures are exact and do not depend
/// on the screen, and all sizes of a face share one font.
struct ShapingFont {
  /// Small enough for Qt to cache advances (it does up to some 120 pixels), large enough for its
  /// 1/64 of a pixel not to add up.
  static constexpr int pixels = 64;

  /// The points for each of those pixels in text of `points`. A size of nothing would leave nothing
  /// to scale.
  static double unit(double points) { return std::max(points, 1.0 / 64) / pixels; }

  /// A decoration's center above (negative) or below the baseline, and its thickness. Ems.
  struct Stroke {
    double offset = 0;
    double thickness = 0;
  };

  QFont font;
  double ascent = 0;   ///< of the face itself, without fallbacks; pixels
  double descent = 0;  ///< likewise
  Stroke underline;
  Stroke strikethrough;
  bool hasWordJoiner = true;  ///< of its own; other faces' may be higher than this face
};

/// Lets no line end where it stands, and shows nothing.
inline constexpr QChar wordJoiner(0x2060);

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

  /// The face of `font` in `pixels`.
  ShapingFont find(const text::ResolvedFont& font, int pixels = ShapingFont::pixels);

  /// Whether faces have come or gone since the last call. The fonts found before are forgotten
  /// then.
  bool refresh();

 private:
  struct Key {
    unsigned faces;  ///< as of that many changes: a change leaves the entries before it unused
    std::string name;
    swiftui::FontWeight weight;
    int pixels;
    bool operator==(const Key&) const = default;
  };

  QFont face(const std::string& name);
  ShapingFont make(const Key& key);

  // Names come from hosts, perhaps without end.
  foundation::Cache<Key, QFont> installed_{128};
  foundation::Cache<Key, ShapingFont> fonts_{128};
  unsigned changes_ = 0;
  std::size_t generation_ = 0;
  bool databaseChanged_ = false;
  QMetaObject::Connection connection_;
};

}  // namespace quorix::qt
