#pragma once

#include <gtest/gtest.h>

#include <QRectF>
#include <QVariantList>
#include <memory>
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

/// What a view's signals said, in order.
struct Told {
  template <class View>
  explicit Told(View& view) {
    QObject::connect(&view, &View::activated, [said = said] { *said << "activated"; });
    QObject::connect(&view, &View::sheetOpened, [said = said] { *said << "opened"; });
    QObject::connect(&view, &View::sheetClosed, [said = said](auto why) { *said << int(why); });
  }
  const QVariantList& operator*() const { return *said; }
  std::shared_ptr<QVariantList> said = std::make_shared<QVariantList>();
};

struct ScreenName {
  template <class Screen>
  static std::string GetName(int) {
    return std::is_same_v<Screen, QuickScreen> ? "Quick" : "Widgets";
  }
};

}  // namespace quorix::testing
