#include <gtest/gtest.h>

#include <QObject>

#include "platform/uikit/URLOpener.h"
#include "qt/EmbeddedPages.h"
#include "qt/WebComponentLoader.h"

namespace quorix::testing {
namespace {

using uikit::URLOpener;

struct Outside final : URLOpener {
  void open(const foundation::URL& url) override { address = url.absoluteString(); }
  std::string address;
};

TEST(WebComponent, WithoutOneThePageIsOpenedOutside) {
  const auto content = std::make_shared<webkit::WebContent>();
  content->load(foundation::URL::parse("https://modules.quorix.example/page").value());
  render::Scene scene;
  QObject place;
  qt::EmbeddedPages pages(QStringLiteral("QuorixWebElsewhere"), place);
  EXPECT_TRUE(pages.canShow(scene) && pages.follow(scene)) << "nothing is wanted";
  scene.items = {render::EmbedItem{{{}, {9, 9}}, content, {}}};
  EXPECT_FALSE(qt::WebComponentLoader::load(QStringLiteral("QuorixWebElsewhere")));
  EXPECT_FALSE(pages.canShow(scene));
  EXPECT_FALSE(pages.follow(scene));
  EXPECT_TRUE(pages.views().empty());

  const auto outside = std::make_shared<Outside>();
  const auto before = URLOpener::install(outside);
  qt::EmbeddedPages::sendOutside(scene);
  URLOpener::install(before);
  EXPECT_EQ(outside->address, "https://modules.quorix.example/page");
}

}  // namespace
}  // namespace quorix::testing
