#pragma once

#include <gtest/gtest.h>

#include <cstdlib>
#include <utility>

#include "QuorixWidgets/localization/ResourceBundle.h"
#include "platform/foundation/Bundle.h"

namespace quorix::testing {

/// What is made once in a process is tried in processes of their own. Under an emulator a test
/// cannot start its program anew; the environment then asks for a fork, and CTest starts each test
/// by itself.
class FreshProcessDeathTest : public ::testing::Test {
 protected:
  FreshProcessDeathTest() {
    if (!std::getenv("GTEST_DEATH_TEST_STYLE")) GTEST_FLAG_SET(death_test_style, "threadsafe");
  }
};

#define EXPECT_IN_FRESH_PROCESS(condition) \
  EXPECT_EXIT(std::exit((condition) ? 0 : 1), ::testing::ExitedWithCode(0), "")

inline void replaceLibraryBundle(foundation::Bundle::Ref bundle) {
  foundation::Bundle::registerBundle(kResourceBundleIdentifier, std::move(bundle));
}

}  // namespace quorix::testing
