#include "platform/uikit/Nib.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "tests/core/InterfaceFile.h"

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

std::string replaced(std::string text, const std::string& from, const std::string& to) {
  const auto at = text.find(from);
  EXPECT_NE(at, std::string::npos) << from;
  return text.replace(at, from.size(), to);
}

}  // namespace

TEST(Nib, RefusesWhatItDoesNotShow) {
  const std::string good =
      interfaceFile(labelElement("a", "x"), constraintElement("a", "top", "", "box", "top", 1));
  const auto with = [&](const std::string& from, const std::string& to) {
    return replaced(good, from, to);
  };
  const std::pair<std::string, const char*> rows[] = {
      {good, "read"},
      {"", "No document element found"},
      {"<view", "Card.xib:1: "},
      {"<nib/>", "not an interface file"},
      {with("'x'", "'x' alpha='0.5'"), "Card.xib:4: the attribute alpha of <label>"},
      {with("<label", "<button"), "Card.xib:4: "},
      {with("'NO'", "'no'"), "translatesAutoresizingMaskIntoConstraints 'no'"},
      {with("'system'", "'boldSystem'"), "type 'boldSystem' of <fontDescription>"},
      {with("pointSize='10'", "pointSize='-1'"), "not a font"},
      {with("pointSize='10'", "pointSize='1e999'"), "no number of points"},
      {with("pointSize='10'", "pointSize='nan'"), "no number of points"},
      {with("</label>", "<color key='textColor' red='1' green='0' blue='0' alpha='1'/></label>"),
       "not in sRGB"},
      {with("</label>", "<switch/></label>"), "<switch> of a view"},
      {with("</subviews>", labelElement("a", "y") + "</subviews>"), "an id of its own"},
      {with("id='a'", "id=''"), "an id of its own"},
      {with("secondItem='box'", "secondItem='nobody'"), "does not join"},
      {with("secondAttribute='top'", "secondAttribute='left'"), "does not join"},
      {with("secondAttribute='top'", "secondAttribute='centerY'"), "edge is not supported"},
      {with("constant='1'", "constant='1' priority='750'"), "priority '750'"},
      {with("customClass=\"Card\"", "customClass=\"Chart\""), "the owner is no Card"},
      {with("property=\"box\"", "property=\"label\""), "no outlet 'label' for this view"},
      {with("property=\"box\"", "property=\"bin\""), "no outlet 'bin'"},
      {with("destination=\"box\"", "destination=\"gone\""), "no outlet 'box'"},
  };
  for (const auto& [xml, expected] : rows) {
    EXPECT_THAT(outcome(xml), ::testing::HasSubstr(expected));
  }
  std::string deep = "<view id='x0'/>";
  for (int i = 1; i < 40; ++i) {
    deep = "<view id='x" + std::to_string(i) + "'><subviews>" + deep + "</subviews></view>";
  }
  EXPECT_THAT(outcome(interfaceFile(deep, "")), ::testing::HasSubstr("nested too deep"));
}
