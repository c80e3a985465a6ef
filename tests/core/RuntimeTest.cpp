#include "platform/foundation/Runtime.h"

#include <gtest/gtest.h>

#include <future>
#include <thread>

#include "platform/foundation/Cache.h"
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
/// The process's initial state, until the end of the block.
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

TEST(ConcurrentURLSession, WithoutATransportCompletesOnAThreadOfItsOwn) {
  const foundation::Runtime::Fresh<URLSession> beforeTheEngine;
  const auto completed = std::make_shared<std::promise<std::thread::id>>();
  const auto url = foundation::URL::parse("https://shop.example/").value();
  URLSession::shared().get(url, [completed](const foundation::URLResponse& response) {
    EXPECT_EQ(response.error ? response.error->code : 0, -1);
    completed->set_value(std::this_thread::get_id());
  });
  EXPECT_NE(completed->get_future().get(), std::this_thread::get_id());
}

TEST(Cache, KeepsTheKeysThatWereUsedLast) {
  foundation::Cache<int, int> doubles(2);
  std::vector<int> made;
  const auto get = [&](int key) {
    return doubles.get(key, [&] {
      made.push_back(key);
      return 2 * key;
    });
  };
  for (const int key : {1, 2, 1, 3, 1, 3, 2, 3}) EXPECT_EQ(get(key), 2 * key);
  EXPECT_EQ(made, (std::vector<int>{1, 2, 3, 2}));
}

TEST(Cache, ParsesAChangedFileAgain) {
  static int parsed = 0;
  foundation::ParsedFileCache<std::string> cache([](std::string_view bytes) {
    ++parsed;
    return std::make_shared<const std::string>(bytes);
  });
  for (const char* bytes : {"a", "a", "b"}) EXPECT_EQ(*cache.read(foundation::Data(bytes)), bytes);
  EXPECT_EQ(parsed, 2);
  const foundation::Data large(std::string(65'537, 'x'));
  EXPECT_EQ(cache.read(large).use_count(), 1) << "a large file is not kept";
}

}  // namespace
}  // namespace quorix
