#include <gtest/gtest.h>

#include "qt/WebComponent.h"

namespace quorix::testing {
namespace {

TEST(WebComponent, IsFoundOnlyWhereItIsInstalled) {
  EXPECT_FALSE(qt::WebComponentLoader::isThere(QStringLiteral("QuorixWebElsewhere")));
  EXPECT_FALSE(qt::WebComponentLoader::load(QStringLiteral("QuorixWebElsewhere")));
}

}  // namespace
}  // namespace quorix::testing
