#pragma once

#include <gtest/gtest.h>

#include <QRectF>
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

/// Where a test's view stands, as high as it wants to be.
constexpr QRectF kPlace(20, 40, 300, 0);

struct ScreenName {
  template <class Screen>
  static std::string GetName(int) {
    return std::is_same_v<Screen, QuickScreen> ? "Quick" : "Widgets";
  }
};

}  // namespace quorix::testing
