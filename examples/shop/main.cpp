#include <QFont>
#include <QGuiApplication>
#include <QQuickWindow>
#include <QSGRendererInterface>
#include <chrono>
#include <cstdio>

#include "examples/shop/Pictures.h"
#include "examples/shop/ShopOptions.h"
#include "examples/shop/ShopWindow.h"
#include "examples/shop/StandInServices.h"
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

void useShopFont() {
  QFont font;
  font.setFamilies({QStringLiteral("Inter"), QStringLiteral("Noto Sans"),
                    QStringLiteral("Open Sans"), QFont().family()});
  QGuiApplication::setFont(font);
}

int writePictures(int argc, char** argv, const std::string& folder) {
  if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
  QQuickWindow::setGraphicsApi(QSGRendererInterface::Software);
  const QGuiApplication app(argc, argv);
  useShopFont();
  quorix::qt::installEngine();
  const StandInServices services(0ms);
  return Pictures(QString::fromStdString(folder)).write() ? 0 : 1;
}

int openShop(int argc, char** argv) {
  const QGuiApplication app(argc, argv);
  useShopFont();
  quorix::qt::installEngine();
  const StandInServices services(250ms);
  const ShopWindow shop;
  shop.window().show();
  return QGuiApplication::exec();
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
  if (options.pictures) return writePictures(argc, argv, options.outFolder);
  if (!hasDisplay()) {
    std::printf("There is no display here: the shop's scenes go into %s as pictures.\n",
                options.outFolder.c_str());
    return writePictures(argc, argv, options.outFolder);
  }
  return openShop(argc, argv);
}
