#include <gtest/gtest.h>

#include <QObject>

#include "qt/EmbeddedPages.h"
#include "qt/WebComponentLoader.h"
#include "tests/core/OpenedAddresses.h"

namespace quorix::testing {
namespace {

TEST(WebComponent, WithoutOneThePageIsOpenedOutside) {
  const auto content = std::make_shared<webkit::WebContent>();
  content->load({foundation::URL::parse("https://modules.quorix.example/page").value()});
  render::Scene scene;
  QObject place;
  struct Owner final : qt::EmbeddedPage::Owner {
    void pageHangs() override {}
    void pageEnded() override {}
  } owner;
  qt::EmbeddedPages pages(QStringLiteral("QuorixWebElsewhere"), place, owner);
  EXPECT_TRUE(pages.canShow(scene) && pages.follow(scene)) << "nothing is wanted";
  scene.items = {render::EmbedItem{{{}, {9, 9}}, content, {}}};
  EXPECT_FALSE(qt::WebComponentLoader::load(QStringLiteral("QuorixWebElsewhere")));
  EXPECT_FALSE(pages.canShow(scene));
  EXPECT_FALSE(pages.follow(scene));
  EXPECT_TRUE(pages.views().empty());

  const OpenedAddresses opened;
  qt::EmbeddedPages::sendOutside(scene);
  EXPECT_EQ(opened.list(), std::vector<std::string>{"https://modules.quorix.example/page"});
}

}  // namespace
}  // namespace quorix::testing
