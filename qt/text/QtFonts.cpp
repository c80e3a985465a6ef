#include "qt/text/QtFonts.h"

#include <QFontDatabase>
#include <QGuiApplication>
#include <QRawFont>
#include <QSignalBlocker>
#include <QStringList>
#include <QtEndian>
#include <cstdlib>
#include <optional>
#include <set>
#include <unordered_map>
#include <utility>

#include "platform/graphics/FontManager.h"
#include "qt/ApplicationLifetime.h"

namespace quorix::qt {
namespace {

using graphics::FontManager;
using graphics::GraphicsFont;

constexpr int anySize = 12;

/// The font with which Qt draws `file`. Where a face of the same family and style is installed from
/// another foundry, Qt tells the two apart by "Family [Foundry]".
QFont nameOf(const QRawFont& file) {
  const QFont plain = QFontDatabase::font(file.familyName(), file.styleName(), anySize);
  const auto draws = [&](const QFont& font) {  // "head" holds the file's checksum
    return QRawFont::fromFont(font).fontTable("head") == file.fontTable("head");
  };
  if (draws(plain)) return plain;
  // Nor does Qt tell cases apart.
  const QStringList families =
      QFontDatabase::families().filter(file.familyName() + " [", Qt::CaseInsensitive);
  for (const QString& family : families) {
    const QFont font = QFontDatabase::font(family, file.styleName(), anySize);
    if (draws(font)) return font;
  }
  return plain;
}

/// Adds the font manager's faces to Qt: each when it is registered, and those registered before the
/// application object when that is made. Main thread.
class RegisteredFaces {
 public:
  static RegisteredFaces& shared() { return applicationLifetime<RegisteredFaces>(); }

  /// The registered face `name`, added to Qt on the first call; null when there is none, or Qt
  /// cannot read it.
  const QFont* find(const std::string& name) {
    const auto known = faces_.find(name);
    if (known != faces_.end()) return &known->second;
    const auto face = FontManager::shared().face(name);
    const auto font = face ? load(*face) : std::nullopt;
    if (!font) return nullptr;
    // Qt finds faces by family; this lets a host use the PostScript name.
    QFont::insertSubstitution(QString::fromStdString(name), font->family());
    return &faces_.emplace(name, *font).first->second;
  }

  /// Adds every registered face to Qt.
  void loadAll() {
    for (const GraphicsFont& face : FontManager::shared().faces()) find(face.postScriptName());
  }

  /// Whether the `fontDatabaseChanged` being emitted is about these faces alone.
  bool isAnnouncing() const { return announcing_; }

 private:
  /// Adds a font file to Qt. If the host has added a face of that name, uses the host's: its own
  /// texts must not change.
  std::optional<QFont> load(const GraphicsFont& face) {
    const std::string_view data = face.data().text();
    const QByteArray bytes(data.data(), static_cast<qsizetype>(data.size()));
    const QString family = QString::fromStdString(face.familyName());
    const QString style = QString::fromStdString(face.styleName());
    if (isOfHost(family, style)) return QFontDatabase::font(family, style, anySize);
    if (QFontDatabase::styles(family).isEmpty()) ownFamilies_ += family;
    // A font constant may be under construction, and a slot of the host's might read it.
    const QSignalBlocker quiet(qGuiApp);
    const int id = QFontDatabase::addApplicationFontFromData(bytes);
    if (id < 0) return std::nullopt;
    ids_.insert(id);
    announce();
    const bool isOwn = ownFamilies_.contains(family) &&
                       QFontDatabase::applicationFontFamilies(id).contains(family);
    if (isOwn) return QFontDatabase::font(family, style, anySize);
    return nameOf(QRawFont(bytes, anySize));
  }

  /// Whether the host has added such a face to Qt's application fonts.
  bool isOfHost(const QString& family, const QString& style) const {
    constexpr int idsToTry = 256;  // Qt numbers them from 0 and has no count of them
    for (int id = 0; id < idsToTry; ++id) {
      const bool isOurs = ids_.contains(id);
      if (isOurs || !QFontDatabase::applicationFontFamilies(id).contains(family)) continue;
      return QFontDatabase::styles(family).contains(style);
    }
    return false;
  }

  /// Sends Qt's notice about new faces, once for all of them, with the next turn of the event loop.
  void announce() {
    if (!std::exchange(announced_, false)) return;
    QMetaObject::invokeMethod(
        qGuiApp,
        [this] {
          announced_ = announcing_ = true;
          emit qGuiApp->fontDatabaseChanged();
          announcing_ = false;
        },
        Qt::QueuedConnection);
  }

  std::unordered_map<std::string, QFont> faces_;
  std::set<int> ids_;        ///< of our faces among Qt's application fonts
  QStringList ownFamilies_;  ///< the families that have only our faces
  bool announced_ = true;
  bool announcing_ = false;
};

/// Runs on the thread that registers `face`; Qt's font database is used on the main thread only.
void handToQt(const GraphicsFont& face) {
  if (!guiApplication()) return;  // `follow` does it later
  QMetaObject::invokeMethod(
      qGuiApp, [name = face.postScriptName()] { RegisteredFaces::shared().find(name); });
}

/// Runs when an application object is made.
void follow() {
  FontManager::shared().setRegistrationObserver(&handToQt);
  if (guiApplication()) RegisteredFaces::shared().loadAll();
}
Q_COREAPP_STARTUP_FUNCTION(follow)

/// Whether `name` without its spaces is `squeezed`, in any case. Copies nothing, since a desktop
/// may have thousands of names.
bool squeezesTo(QStringView name, QStringView squeezed) {
  for (const QChar character : name) {
    if (character == QLatin1Char(' ')) continue;
    if (squeezed.isEmpty() || character.toLower() != squeezed.front().toLower()) return false;
    squeezed = squeezed.sliced(1);
  }
  return squeezed.isEmpty();
}

/// The face of that PostScript name, if it has the usual form: family and style without spaces,
/// with a hyphen between them.
std::optional<QFont> postScriptFace(QString name) {
  name.remove(QLatin1Char(' '));
  const QString stem = name.section(QLatin1Char('-'), 0, 0);
  const QString style = name.section(QLatin1Char('-'), 1);
  const QStringList families = QFontDatabase::families();
  for (const QString& family : families) {
    if (squeezesTo(family, name)) return QFont(family);
    if (!squeezesTo(family, stem)) continue;
    const QStringList styles = QFontDatabase::styles(family);
    for (const QString& known : styles) {
      if (squeezesTo(known, style)) return QFontDatabase::font(family, known, anySize);
    }
  }
  return std::nullopt;
}

QFont face(const std::string& name) {
  if (const QFont* registered = RegisteredFaces::shared().find(name)) return *registered;
  if (!name.empty()) {
    const QString wanted = QString::fromStdString(name);
    if (QFontDatabase::hasFamily(wanted)) return QFont(wanted);
    if (const auto found = postScriptFace(wanted)) return *found;
  }
  return QFontDatabase::systemFont(QFontDatabase::GeneralFont);
}

/// The face of `named`'s family that is nearest to `weight` and not lighter than `named`, so that a
/// semi-bold face stays semi-bold. Weights that the family lacks are not synthesized.
QFont weighted(const QFont& named, int weight) {
  const QString family = named.family();
  QFont nearest = named;
  const QStringList styles = QFontDatabase::styles(family);
  for (const QString& style : styles) {
    const int has = QFontDatabase::weight(family, style);
    const bool nearer = std::abs(has - weight) < std::abs(nearest.weight() - weight);
    if (!nearer || has < named.weight() || QFontDatabase::italic(family, style)) continue;
    nearest = QFontDatabase::font(family, style, anySize);
  }
  return nearest;
}

/// The strikethrough that the font's designer drew, or the middle of its small letters.
text::Stroke strikethrough(const QRawFont& font) {
  constexpr qsizetype sizeAt = 26, positionAt = 28;
  const QByteArray os2 = font.fontTable("OS/2");
  if (os2.size() >= positionAt + 2) {
    const double size = qFromBigEndian<qint16>(os2.constData() + sizeAt) / font.unitsPerEm();
    const double top = qFromBigEndian<qint16>(os2.constData() + positionAt) / font.unitsPerEm();
    if (size > 0 && top > 0) return {size / 2 - top, size};
  }
  return {-font.xHeight() / 2 / font.pixelSize(), font.lineThickness() / font.pixelSize()};
}

}  // namespace

QtFonts& QtFonts::shared() { return applicationLifetime<QtFonts>(); }

QtFonts::QtFonts() {
  installSystemLookup();
  generation_ = FontManager::shared().generation();
  QObject::connect(qGuiApp, &QGuiApplication::fontDatabaseChanged, &follower_, [this] {
    // New faces of ours are counted by `generation_`.
    if (!RegisteredFaces::shared().isAnnouncing()) databaseChanged_ = true;
  });
}

void QtFonts::installSystemLookup() { FontManager::shared().setSystemLookup(&systemKnows); }

bool QtFonts::systemKnows(std::string_view name) {
  if (!guiApplication() || name.empty()) return false;
  // Not `hasFamily`, which first asks the system what else the name might stand for: that takes
  // milliseconds and finds no face of that name.
  return postScriptFace(QString::fromUtf8(name)).has_value();
}

bool QtFonts::refresh() {
  const std::size_t generation = FontManager::shared().generation();
  if (generation == generation_ && !databaseChanged_) return false;
  generation_ = generation;
  databaseChanged_ = false;
  fonts_.clear();
  return true;
}

ShapingFont QtFonts::find(text::ResolvedFont wanted, int pixels) {
  wanted.points = pixels;
  return fonts_.get(wanted, [&] {
    QFont font = face(wanted.name);
    const int weight = static_cast<int>(wanted.weight);
    if (font.weight() < weight) {
      RegisteredFaces::shared().loadAll();
      font = weighted(font, weight);
    }
    font.setPixelSize(pixels);
    font.setHintingPreference(QFont::PreferNoHinting);
    font.setStyleStrategy(QFont::NoSubpixelAntialias);
    const QRawFont raw = QRawFont::fromFont(font);
    const text::Stroke underline{raw.underlinePosition() / pixels, raw.lineThickness() / pixels};
    return ShapingFont{font, underline, strikethrough(raw), raw.supportsCharacter(wordJoiner)};
  });
}

}  // namespace quorix::qt
