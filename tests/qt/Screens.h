#pragma once

#include <gtest/gtest.h>

#include <string>
#include <type_traits>

#include "tests/qt/QuickScreen.h"
#include "tests/qt/WidgetScreen.h"

namespace quorix::testing {

/// Every toolkit's, for what holds in all.
///
///     template <class> struct Sheet : ::testing::Test {};
///     TYPED_TEST_SUITE(Sheet, Screens, ScreenName);
using Screens = ::testing::Types<QuickScreen, WidgetScreen>;

struct ScreenName {
  template <class Screen>
  static std::string GetName(int) {
    return std::is_same_v<Screen, QuickScreen> ? "Quick" : "Widgets";
  }
};

}  // namespace quorix::testing
