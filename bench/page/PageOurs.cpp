// From the tap to the sheet and to the page in it, with the engine cold and warm.

#include <QGuiApplication>
#include <QTest>
#include <memory>

#include "bench/page/Painted.h"
#include "platform/swiftui/Elements.h"
#include "platform/swiftui/Node.h"
#include "platform/webkit/WebContent.h"
#include "qt/quick/ViewItem.h"

namespace {

using namespace quorix;

/// A page as large as it is offered.
struct Page final : render::HostedContent {
  std::shared_ptr<webkit::WebContent> content = std::make_shared<webkit::WebContent>();

  layout::Size sizeThatFits(layout::ProposedSize offered, text::TextEngine&, double) override {
    return {offered.width.value_or(0), offered.height.value_or(0)};
  }
  render::Scene scene(layout::Size size, const render::Display&, text::TextEngine&) override {
    render::Scene scene;
    scene.size = size;
    scene.items.push_back(render::EmbedItem{{{}, size}, content, {255, 255, 255, 255}});
    return scene;
  }
};

struct Opener {
  static constexpr std::string_view typeName = "Opener";
  swiftui::State<bool> shown{false};
  auto states() const { return std::tie(shown); }

  swiftui::View body() const {
    const auto make = [] {
      auto page = std::make_shared<Page>();
      page->content->load(foundation::URL::parse(bench::pageAddress).value());
      return page;
    };
    return swiftui::View(swiftui::Text::verbatim("open"))
        .onTapGesture([binding = shown.binding()] { binding.toggle(); })
        .sheet(shown.binding(), swiftui::makeView(swiftui::nodes::Represented{"Page", make}));
  }
};

}  // namespace

int main(int argc, char** argv) {
  QCoreApplication::setAttribute(Qt::AA_ShareOpenGLContexts);
  QGuiApplication app(argc, argv);
  bench::blueServer();
  QQuickWindow window;
  window.resize(360, 600);
  window.show();
  qt::ViewItem item(swiftui::View(Opener{}), window.contentItem());
  if (!QTest::qWaitForWindowExposed(&window)) return 1;
  item.setMotion(false);
  QTest::qWait(100);
  const QPoint middle = QRectF(item.position(), item.size()).center().toPoint();
  for (const char* name : {"ours cold", "ours warm", "ours warm"}) {
    bench::timePage(name, window, [&] { QTest::mouseClick(&window, Qt::LeftButton, {}, middle); });
    QTest::keyClick(&window, Qt::Key_Escape);
    QTest::qWait(300);
  }
  return 0;
}
