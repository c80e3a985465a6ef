#include "platform/foundation/Cache.h"

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

namespace quorix {
namespace {

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
