#include "platform/foundation/Runtime.h"

#include <gtest/gtest.h>

#include "platform/foundation/MainQueue.h"
#include "platform/foundation/URLSession.h"
#include "platform/graphics/AssetCatalog.h"
#include "platform/graphics/FontManager.h"
#include "platform/uikit/UIApplication.h"
#include "platform/uikit/UIWindow.h"

namespace quorix {
namespace {

using foundation::Bundle;
using foundation::MainQueue;
using foundation::URLSession;
using uikit::UIApplication;

template <class... T>
std::tuple<foundation::Runtime::Fresh<T>...> freshPieces(std::tuple<T*...>);
/// The process's state as at its start, until the end of the block.
using FreshRuntime = decltype(freshPieces(foundation::Runtime::Pieces()));

TEST(Runtime, ATestCanReplaceEachPieceForAWhile) {
  const FreshRuntime around;
  const auto host = Bundle::of({});
  const auto url = foundation::URL::parse("https://shop.example/").value();
  MainQueue::async([] {});
  Bundle::setMain(host);
  UIApplication::shared().connect(std::make_shared<uikit::UIScene>());
  const auto protocol = URLSession::shared().registerProtocol([](const auto&) {
    return foundation::URLResponse{{}, "answer", 200};
  });
  {
    const FreshRuntime fresh;
    EXPECT_EQ(MainQueue::drain(), 0);
    EXPECT_FALSE(Bundle::hasMain());
    EXPECT_TRUE(UIApplication::shared().connectedScenes().empty());
    EXPECT_FALSE(URLSession::shared().answerInProcess(url));
    const auto face = graphics::dataSet(Bundle::embedded(), "Fonts/Saans-Regular").value();
    graphics::FontManager::shared().registerGraphicsFont(
        graphics::GraphicsFont::fromData(face).value());
  }
  EXPECT_EQ(MainQueue::drain(), 1);
  EXPECT_EQ(Bundle::main(), host);
  EXPECT_EQ(UIApplication::shared().connectedScenes().size(), 1u);
  EXPECT_TRUE(URLSession::shared().answerInProcess(url));
  EXPECT_FALSE(graphics::FontManager::shared().knows("Saans-Regular"));
}

}  // namespace
}  // namespace quorix
