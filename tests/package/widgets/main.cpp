// A Qt Widgets app with the imperative info widget in a layout.
#include <QuorixWidgets/info/InfoWidgetBuilder.h>
#include <platform/swiftui/UIViewRepresentable.h>
#include <qt/widgets/ViewWidget.h>

#include <QApplication>
#include <QImage>
#include <QVBoxLayout>
#include <cstdio>

int main(int argc, char** argv) {
  QApplication app(argc, argv);
  QWidget page;
  auto* info = new quorix::qt::ViewWidget(
      quorix::swiftui::hosting(quorix::InfoWidgetBuilder::buildUIKitInfoWidgetView(
          "es", {std::nullopt, std::nullopt, std::nullopt, false})));
  auto* layout = new QVBoxLayout(&page);
  layout->addWidget(info);
  layout->addStretch();
  page.resize(390, 400);
  page.show();
  const QImage before = page.grab().toImage();
  info->hide();
  const bool painted = info->height() > 10 && before != page.grab().toImage();
  std::printf("info widget: %d pixels high, %s\n", info->height(), painted ? "painted" : "blank");
  return painted ? 0 : 1;
}
