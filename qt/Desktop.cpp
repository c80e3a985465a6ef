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

#ifdef QUORIX_DBUS
#include "qt/DesktopPortal.h"
#endif

namespace quorix::qt {
namespace {

/// The value of `key` in the configuration file `name`, or `otherwise` if it is absent.
QVariant configured(const QString& name, const QString& key, const QVariant& otherwise) {
  const QString path = QStandardPaths::locate(QStandardPaths::GenericConfigLocation, name);
  if (path.isEmpty()) return otherwise;
  return QSettings(path, QSettings::IniFormat).value(key, otherwise);
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

}  // namespace

Desktop* Desktop::instance() {
  static QPointer<Desktop> instance;
  if (!instance && QCoreApplication::instance())
    instance = new Desktop(QCoreApplication::instance());
  return instance;
}

Desktop::Desktop(QObject* application) : QObject(application) {
  application->installEventFilter(this);
  connect(qGuiApp, &QGuiApplication::layoutDirectionChanged, this, &Desktop::changed);
#ifdef QUORIX_DBUS
  portal_ = new DesktopPortal(this);
  connect(portal_, &DesktopPortal::changed, this, &Desktop::changed);
#endif
}

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

swiftui::ContentSizeCategory Desktop::textSize() {
  double factor = 1;
#ifdef QUORIX_DBUS
  // On X11 desktops multiply it into the DPI, by which Qt scales every window.
  const Desktop* desktop = instance();
  const bool enlarged = QGuiApplication::platformName() == QLatin1String("xcb");
  if (desktop && !enlarged) factor = desktop->portal_->textScale();
#endif
  return swiftui::contentSizeCategoryFor(factor);
}

bool Desktop::prefersReducedMotion() {
  // Qt 6.4 does not tell. Asks the settings service that desktops share, and reads their files
  // where there is none.
#ifdef QUORIX_DBUS
  const Desktop* desktop = instance();
  if (desktop && desktop->portal_->prefersReducedMotion()) return true;
#endif
  if (configured("kdeglobals", "KDE/AnimationDurationFactor", 1.0).toDouble() == 0) return true;
  for (const char* gtk : {"gtk-4.0/settings.ini", "gtk-3.0/settings.ini"}) {
    if (!configured(gtk, "Settings/gtk-enable-animations", true).toBool()) return true;
  }
  return false;
}

bool Desktop::eventFilter(QObject* watched, QEvent* event) {
  const bool application = watched == QCoreApplication::instance();
  if (event->type() == QEvent::ThemeChange ||
      (application && event->type() == QEvent::ApplicationPaletteChange)) {
    emit changed();
  }
  return false;
}

}  // namespace quorix::qt
