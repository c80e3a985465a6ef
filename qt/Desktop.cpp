#include "qt/Desktop.h"

#include <QEvent>
#include <QGuiApplication>
#include <QLocale>
#include <QPalette>
#include <QPointer>
#include <QSettings>
#include <QStandardPaths>
#include <string>
#include <utility>

#include "qt/ApplicationLifetime.h"
#include "qt/DesktopPortal.h"
#include "qt/Surface.h"

namespace quorix::qt {
namespace {

/// The value of `key` in the configuration file `name`, or `otherwise` if it is absent.
QVariant configured(const QString& name, const QString& key, const QVariant& otherwise) {
  const QString path = QStandardPaths::locate(QStandardPaths::GenericConfigLocation, name);
  if (path.isEmpty()) return otherwise;
  return QSettings(path, QSettings::IniFormat).value(key, otherwise);
}

void tellSurfaces() {
  Surface::forEach([](Surface& surface) { surface.desktopChanged(); });
}

/// The code of Qt's default language. Cached, because every row of a list asks for it.
const std::string& languageCode() {
  static QLocale::Language known = QLocale::AnyLanguage;
  static std::string code;
  const QLocale::Language language = QLocale().language();
  if (std::exchange(known, language) != language) {
    code = QLocale::languageToCode(language).toStdString();
  }
  return code;
}

/// Lives as long as the application object.
class Follower : public QObject {
 public:
  explicit Follower(QGuiApplication& application) : QObject(&application) {
    application.installEventFilter(this);
    connect(&application, &QGuiApplication::layoutDirectionChanged, this, tellSurfaces);
    connect(&portal, &DesktopPortal::changed, this, tellSurfaces);
  }

  DesktopPortal portal;

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override {
    const bool application = watched == parent();
    if (event->type() == QEvent::ThemeChange ||
        (application && event->type() == QEvent::ApplicationPaletteChange)) {
      tellSurfaces();
    }
    return false;
  }
};

/// Null without a `QGuiApplication`.
Follower* follower() {
  static QPointer<Follower> instance;
  QGuiApplication* application = guiApplication();
  if (!instance && application) instance = new Follower(*application);
  return instance;
}

/// The user's text size, unless Qt has already enlarged everything by it.
swiftui::ContentSizeCategory textSize() {
  // On X11 desktops multiply it into the DPI, by which Qt scales every window.
  const bool enlarged = QGuiApplication::platformName() == QLatin1String("xcb");
  return follower() && !enlarged ? follower()->portal.textSize()
                                 : swiftui::ContentSizeCategory::large;
}

}  // namespace

void Desktop::follow() { follower(); }

swiftui::Environment Desktop::environment(double scale) {
  return {.appearance = appearanceOf(QGuiApplication::palette()),
          .direction = directionOf(QGuiApplication::layoutDirection()),
          .textSize = textSize(),
          .scale = scale,
          .language = languageCode()};
}

graphics::Appearance Desktop::appearanceOf(const QPalette& palette) {
  const bool dark = palette.color(QPalette::Window).lightnessF() <
                    palette.color(QPalette::WindowText).lightnessF();
  return dark ? graphics::Appearance::dark : graphics::Appearance::light;
}

layout::LayoutDirection Desktop::directionOf(Qt::LayoutDirection direction) {
  return direction == Qt::RightToLeft ? layout::LayoutDirection::rightToLeft
                                      : layout::LayoutDirection::leftToRight;
}

bool Desktop::prefersReducedMotion() {
  // Qt 6.4 does not tell. Asks the settings service that desktops share, and reads their files
  // where there is none.
  if (follower() && follower()->portal.prefersReducedMotion()) return true;
  if (configured("kdeglobals", "KDE/AnimationDurationFactor", 1.0).toDouble() == 0) return true;
  for (const char* gtk : {"gtk-4.0/settings.ini", "gtk-3.0/settings.ini"}) {
    if (!configured(gtk, "Settings/gtk-enable-animations", true).toBool()) return true;
  }
  return false;
}

}  // namespace quorix::qt
