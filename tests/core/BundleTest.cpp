#include "platform/foundation/Bundle.h"

#include <gmock/gmock.h>

#include <unistd.h>

#include <filesystem>
#include <fstream>

#include "tests/core/Resources.h"

namespace quorix::foundation {
namespace {

namespace fs = std::filesystem;

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
  EXPECT_EQ(bundle_->data("a/b/deep.txt").value(), Data("deep"));
  EXPECT_EQ(bundle_->data("top.txt").value().size(), 0U);
  EXPECT_EQ(bundle_->data("a/b"), std::nullopt) << "a folder has no bytes";

  const auto english = bundle_->folder("en.lproj");
  ASSERT_TRUE(english);
  EXPECT_EQ(english->data("Main.strings").value(), Data("english"));
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
  const auto folder = Bundle::of({{"a/longer/than/a/short/string.txt", Data("text")}})->folder("a");
  EXPECT_EQ(folder->data("longer/than/a/short/string.txt").value(), Data("text"));
}

INSTANTIATE_TEST_SUITE_P(Kinds, BundleTest, ::testing::Bool(),
                         [](const auto& kind) { return kind.param ? "Folder" : "Embedded"; });

}  // namespace
}  // namespace quorix::foundation
