#include "qt/RegisteredFaces.h"

#include <QFontDatabase>
#include <QGuiApplication>
#include <QRawFont>
#include <QSignalBlocker>
#include <QThread>
#include <utility>

#include "qt/ApplicationLifetime.h"

namespace quorix::qt {
namespace {

using graphics::FontManager;
using graphics::GraphicsFont;

constexpr int anySize = 12;

bool hasGuiApplication() {
  return qobject_cast<QGuiApplication*>(QCoreApplication::instance()) != nullptr;
}

/// Runs on the thread that registers `face`; Qt's font database is used on the main thread only.
void handToQt(const GraphicsFont& face) {
  if (!hasGuiApplication()) return;  // `follow` does it later
  const auto load = [name = face.postScriptName()] { RegisteredFaces::shared().find(name); };
  if (QThread::currentThread() == qGuiApp->thread()) return load();
  QMetaObject::invokeMethod(qGuiApp, load, Qt::QueuedConnection);
}

/// Runs when an application object is made.
void follow() {
  FontManager::shared().setRegistrationObserver(&handToQt);
  if (hasGuiApplication() && FontManager::shared().generation() > 0) {
    RegisteredFaces::shared().loadAll();
  }
}
Q_COREAPP_STARTUP_FUNCTION(follow)

/// The font with which Qt draws `file`. Where a face of the same family and style is installed from
/// another foundry, Qt tells the two apart by "Family [Foundry]".
QFont nameOf(const QRawFont& file) {
  const auto draws = [&](const QFont& font) {  // "head" holds the file's checksum
    return QRawFont::fromFont(font).fontTable("head") == file.fontTable("head");
  };
  const QFont plain = QFontDatabase::font(file.familyName(), file.styleName(), anySize);
  if (draws(plain)) return plain;
  const QString prefix = file.familyName() + QLatin1String(" [");
  const QStringList families = QFontDatabase::families();
  for (const QString& family : families) {
    if (!family.startsWith(prefix, Qt::CaseInsensitive)) continue;  // nor does Qt tell cases apart
    const QFont font = QFontDatabase::font(family, file.styleName(), anySize);
    if (draws(font)) return font;
  }
  return plain;
}

}  // namespace

RegisteredFaces& RegisteredFaces::shared() { return applicationLifetime<RegisteredFaces>(); }

const QFont* RegisteredFaces::find(const std::string& name) {
  const auto known = faces_.find(name);
  if (known != faces_.end()) return &known->second;
  const auto face = FontManager::shared().face(name);
  if (!face) return nullptr;
  const auto font = load(*face);
  if (!font) return nullptr;
  // Qt finds faces by family; this lets a host use the PostScript name.
  QFont::insertSubstitution(QString::fromStdString(name), font->family());
  return &faces_.emplace(name, *font).first->second;
}

void RegisteredFaces::loadAll() {
  for (const GraphicsFont& face : FontManager::shared().faces()) find(face.postScriptName());
}

/// Adds a font file to Qt. If the host has added a face of that name, uses the host's: its own
/// texts must not change.
std::optional<QFont> RegisteredFaces::load(const GraphicsFont& face) {
  const std::string_view data = face.data().text();
  const QByteArray bytes(data.data(), static_cast<qsizetype>(data.size()));
  const QString family = QString::fromStdString(face.familyName());
  const QString style = QString::fromStdString(face.styleName());
  if (isOfHost(family, style)) return QFontDatabase::font(family, style, anySize);
  if (QFontDatabase::styles(family).isEmpty()) ownFamilies_ += family;
  int id = -1;
  {
    // A constant may be in the making, and a slot of the host's may read it: see `announce`.
    const QSignalBlocker quiet(qGuiApp);
    id = QFontDatabase::addApplicationFontFromData(bytes);
    if (id < 0) return std::nullopt;
    ids_.insert(id);
  }
  announce();
  const bool isOwn =
      ownFamilies_.contains(family) && QFontDatabase::applicationFontFamilies(id).contains(family);
  if (isOwn) return QFontDatabase::font(family, style, anySize);
  return nameOf(QRawFont(bytes, anySize));
}

/// Whether the host has added such a face to Qt's application fonts.
bool RegisteredFaces::isOfHost(const QString& family, const QString& style) const {
  constexpr int idsToTry = 256;  // Qt numbers them from 0 and has no count of them
  for (int id = 0; id < idsToTry; ++id) {
    if (ids_.contains(id) || !QFontDatabase::applicationFontFamilies(id).contains(family)) continue;
    return QFontDatabase::styles(family).contains(style);
  }
  return false;
}

/// Sends Qt's notice about new faces, once for all of them, with the next turn of the event loop.
void RegisteredFaces::announce() {
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

}  // namespace quorix::qt
