#include "platform/foundation/Runtime.h"

#include <gmock/gmock.h>
#include <unistd.h>

#include <filesystem>
#include <fstream>
#include <future>
#include <thread>

#include "platform/foundation/Cache.h"
#include "platform/foundation/MainQueue.h"
#include "platform/foundation/URLSession.h"
#include "platform/graphics/AssetCatalog.h"
#include "platform/graphics/FontManager.h"
#include "platform/uikit/UIApplication.h"
#include "platform/uikit/UIWindow.h"
#include "tests/core/Resources.h"

namespace quorix {
namespace {

namespace fs = std::filesystem;
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

const std::map<std::string, std::string> kFiles = {
    {"en.lproj/Main.strings", "english"}, {"en.lproj-old/x", "x"}, {"a/b/deep.txt", "deep"},
    {"a/c/Contents.json", "{}"},          {"top.txt", ""},
};

/// The same files as a bundle in memory and as a folder. A secret file is beside the folder.
class BundleTest : public ::testing::TestWithParam<bool> {
 protected:
  void SetUp() override {
    if (!GetParam()) {
      bundle_ = testing::memoryBundle(kFiles);
      return;
    }
    base_ = fs::path(::testing::TempDir()) / ("bundle-" + std::to_string(::getpid()));
    const fs::path root = base_ / "inside";
    for (const auto& [path, text] : kFiles) {
      fs::create_directories((root / path).parent_path());
      std::ofstream(root / path) << text;
    }
    std::ofstream(base_ / "secret") << "secret";
    fs::create_directories(base_ / "inside2");
    std::ofstream(base_ / "inside2/secret") << "secret";
    fs::create_symlink(base_ / "secret", root / "link");
    fs::create_directory_symlink(base_ / "inside2", root / "way");
    bundle_ = Bundle::open(root.string());
  }
  void TearDown() override {
    if (!base_.empty()) fs::remove_all(base_);
  }

  fs::path base_;
  Bundle::Ref bundle_;
};

TEST_P(BundleTest, FindsAndReadsFilesAndFolders) {
  EXPECT_EQ(bundle_->pathForResource("a/b/deep", "txt"), "a/b/deep.txt");
  EXPECT_EQ(bundle_->data("a/b/deep.txt").value(), foundation::Data("deep"));
  EXPECT_EQ(bundle_->data("top.txt").value().size(), 0U);
  EXPECT_EQ(bundle_->data("a/b"), std::nullopt) << "a folder has no bytes";

  const auto english = bundle_->folder("en.lproj");
  ASSERT_TRUE(english);
  EXPECT_EQ(english->data("Main.strings").value(), foundation::Data("english"));
  EXPECT_EQ(english->data("top.txt"), std::nullopt);

  EXPECT_THAT(bundle_->folders("a"), ::testing::ElementsAre("b", "c"));
}

TEST_P(BundleTest, NothingOutsideIsReached) {
  const auto inner = bundle_->folder("a");
  const std::vector<std::string> paths = {
      "../secret",   "a/../../secret", "/etc/passwd",       "link", "way/secret",
      "../top.txt",  "./top.txt",      "a//b/deep.txt",     "",     "top.txt/",
      "..\\top.txt", "C:top.txt",      {"top.txt\0.x", 10}, "..",   "../inside2/secret",
  };
  for (const std::string& path : paths) {
    EXPECT_EQ(bundle_->data(path), std::nullopt) << path;
    EXPECT_EQ(inner->data(path), std::nullopt) << path;
    EXPECT_EQ(bundle_->pathForResource(path, ""), std::nullopt) << path;
    EXPECT_EQ(bundle_->folder(path), nullptr) << path;
  }
  EXPECT_THAT(bundle_->folders("../inside2"), ::testing::IsEmpty());
}

TEST(BundleOfFiles, AFolderOutlivesIt) {
  const auto folder =
      Bundle::of({{"a/longer/than/a/short/string.txt", foundation::Data("text")}})->folder("a");
  EXPECT_EQ(folder->data("longer/than/a/short/string.txt").value(), foundation::Data("text"));
}

INSTANTIATE_TEST_SUITE_P(Kinds, BundleTest, ::testing::Bool(),
                         [](const auto& kind) { return kind.param ? "Folder" : "Embedded"; });

}  // namespace
}  // namespace quorix
