#pragma once

#include <gtest/gtest.h>

#include <algorithm>
#include <memory>
#include <string>

#include "platform/foundation/URLSession.h"
#include "qt/Picture.h"
#include "tests/qt/MatchesPicture.h"

namespace quorix::testing {

/// While it lives no request gets an answer.
inline std::shared_ptr<void> offline() {
  return foundation::URLSession::shared().registerProtocol([](const auto&) {
    return foundation::URLResponse{foundation::Error{"Test", 1, "offline"}, {}, 0};
  });
}

/// A test of pictures, each known by the name of its reference, which says in words what is on it:
/// "sheet-discount-dark-3x".
class NamedPicture : public ::testing::TestWithParam<const char*> {
 protected:
  static bool says(const std::string& word) {
    return ("-" + std::string(GetParam()) + "-").find("-" + word + "-") != std::string::npos;
  }

  /// Of `view`, which asks no network, in the looks that the name tells.
  static void expectLooksAsItDid(const swiftui::View& view) {
    const auto requests = offline();
    qt::PictureOptions options;
    options.width = 343;
    options.sheet = says("sheet");
    swiftui::Environment& environment = options.environment;
    environment.language = "en";
    if (says("dark")) environment.appearance = graphics::Appearance::dark;
    if (says("rtl") || says("ar")) environment.direction = layout::LayoutDirection::rightToLeft;
    if (says("large")) environment.textSize = swiftui::ContentSizeCategory::extraExtraExtraLarge;
    if (says("2x")) environment.scale = 2;
    if (says("3x")) environment.scale = 3;
    EXPECT_TRUE(matchesPicture(qt::picture(view, options), GetParam()));
  }
};

/// The names, as a test's may be.
inline std::string pictureTestName(const ::testing::TestParamInfo<const char*>& tested) {
  std::string name = tested.param;
  std::replace(name.begin(), name.end(), '-', '_');
  return name;
}

}  // namespace quorix::testing
