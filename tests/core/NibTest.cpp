#include "platform/uikit/Nib.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "tests/core/InterfaceFile.h"
#include "tests/core/Vectors.h"

using namespace quorix;
using namespace quorix::uikit;
using quorix::testing::constraintElement;
using quorix::testing::interfaceFile;
using quorix::testing::labelElement;

namespace {

/// The refusal of `xml`, or what it connected.
std::string outcome(const std::string& xml) {
  std::shared_ptr<UIView> box;
  std::weak_ptr<UILabel> label;
  const auto read = Nib::parse(xml, "Card", "Card", {{{"box", &box}}, {{"label", &label}}});
  if (const auto* error = std::get_if<foundation::Error>(&read)) {
    EXPECT_EQ(box, nullptr) << "a refused file connects nothing";
    return error->description;
  }
  return box ? "read" : "nothing connected";
}

}  // namespace

TEST(Nib, RefusesWhatItDoesNotShow) {
  const std::string good =
      interfaceFile(labelElement("a", "x"), constraintElement("a", "top", "", "box", "top", 1));
  EXPECT_EQ(outcome(good), "read");
  EXPECT_THAT(outcome(""), ::testing::HasSubstr("No document element found"));
  EXPECT_THAT(outcome("<view"), ::testing::HasSubstr("Card.xib:1: "));
  EXPECT_THAT(outcome("<nib/>"), ::testing::HasSubstr("not an interface file"));
  forEachRow("interface_mistakes", [&](simdjson::dom::element row) {
    std::string xml = good;
    const auto at = xml.find(::text(row, "from"));
    ASSERT_NE(at, std::string::npos);
    xml.replace(at, ::text(row, "from").size(), ::text(row, "to"));
    EXPECT_THAT(outcome(xml), ::testing::HasSubstr(::text(row, "says")));
  });
  std::string deep = "<view id='x0'/>";
  for (int i = 1; i < 40; ++i) {
    deep = "<view id='x" + std::to_string(i) + "'><subviews>" + deep + "</subviews></view>";
  }
  EXPECT_THAT(outcome(interfaceFile(deep, "")), ::testing::HasSubstr("nested too deep"));
}
