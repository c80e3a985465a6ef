#include <QApplication>
#include <QFont>
#include <QQuickWindow>
#include <QSGRendererInterface>
#include <QScreen>
#include <chrono>
#include <cstdio>

#ifdef Q_OS_LINUX
#include <unistd.h>
#endif

#include "examples/shop/OverlayPages.h"
#include "examples/shop/Shop.h"
#include "examples/shop/ShopOptions.h"
#include "examples/shop/StandInServices.h"
#include "examples/shop/WayOut.h"
#include "examples/shop/pictures/Pictures.h"
#include "examples/shop/quick/QuickWindow.h"
#include "examples/shop/widgets/WidgetsWindow.h"
#include "qt/Engine.h"

namespace {

using namespace quorix::examples;
using namespace std::chrono_literals;

bool hasDisplay() {
#if defined(Q_OS_UNIX) && !defined(Q_OS_DARWIN) && !defined(Q_OS_ANDROID)
  return qEnvironmentVariableIsSet("DISPLAY") || qEnvironmentVariableIsSet("WAYLAND_DISPLAY") ||
         qEnvironmentVariableIsSet("QT_QPA_PLATFORM");
#else
  return true;
#endif
}

void prepare() {
  QFont font;
  font.setFamilies({QStringLiteral("Inter"), QStringLiteral("Noto Sans"),
                    QStringLiteral("Open Sans"), QStringLiteral("Noto Sans Arabic"),
                    QStringLiteral("Noto Sans CJK JP"), QStringLiteral("VL PGothic"),
                    QFont().family()});
  QGuiApplication::setFont(font);
  quorix::qt::installEngine();
}

/// Sets options that the web engine reads before the application object is made.
void makeReadyForPages() {
  QCoreApplication::setAttribute(Qt::AA_ShareOpenGLContexts);
#ifdef Q_OS_LINUX
  // The engine has no sandbox for root, the usual user in a container. The demo shows only its own
  // pages.
  if (geteuid() == 0) qputenv("QTWEBENGINE_DISABLE_SANDBOX", "1");
#endif
}

int writePictures(int argc, char** argv, const std::string& folder) {
  if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
  QQuickWindow::setGraphicsApi(QSGRendererInterface::Software);
  const QApplication app(argc, argv);
  prepare();
  const StandInServices services(0ms);
  return Pictures(QString::fromStdString(folder)).write() ? 0 : 1;
}

/// The shop, its stand-in services and its window.
struct OpenShop {
  explicit OpenShop(const ShopOptions& options) { shop.chooseLanguage(options.language); }

  StandInServices services{250ms};
  Shop shop;
  OverlayPages pages{shop};
  WayOut wayOut{shop};
  QuickWindow quick{shop};
};

int openQuick(int argc, char** argv, const ShopOptions& options) {
  const QGuiApplication app(argc, argv);
  prepare();
  const OpenShop open(options);
  open.quick.window().show();
  return QGuiApplication::exec();
}

/// Shows one shop in two windows, one for each toolkit.
int openBoth(int argc, char** argv, const ShopOptions& options) {
  const QApplication app(argc, argv);
  prepare();
  OpenShop open(options);
  QQuickWindow& quick = open.quick.window();
  WidgetsWindow widgets(open.shop);
  const QRect room = QGuiApplication::primaryScreen()->availableGeometry();
  const int gap = 12;
  const int both = quick.width() + gap + widgets.width();
  const int left = room.left() + qMax(0, (room.width() - both) / 2);
  const int top = room.top() + qMax(0, (room.height() - widgets.height()) / 2);
  quick.setPosition(left, top);
  widgets.move(left + quick.width() + gap, top);
  quick.show();
  widgets.show();
  return QApplication::exec();
}

}  // namespace

int main(int argc, char** argv) {
  const auto parsed = ShopOptions::parse({argv + 1, argv + argc});
  if (const auto* mistake = std::get_if<std::string>(&parsed)) {
    std::fprintf(stderr, "quorix-shop: %s\n", mistake->c_str());
    return 2;
  }
  const auto& options = std::get<ShopOptions>(parsed);
  if (options.help) {
    std::fputs(ShopOptions::usage(), stdout);
    return 0;
  }
  makeReadyForPages();
  if (options.pictures) return writePictures(argc, argv, options.outFolder);
  if (!hasDisplay()) {
    std::printf("There is no display here: the shop's scenes go into %s as pictures.\n",
                options.outFolder.c_str());
    return writePictures(argc, argv, options.outFolder);
  }
  return options.widgets ? openBoth(argc, argv, options) : openQuick(argc, argv, options);
}
