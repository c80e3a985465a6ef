#pragma once

#include <string>

namespace quorix::testing {

/// An interface file whose one view, "box", is the outlet `box` of a "Card", with `subviews` and
/// `constraints` in it.
inline std::string interfaceFile(const std::string& subviews, const std::string& constraints) {
  return R"(<document type="com.apple.InterfaceBuilder3.CocoaTouch.XIB"><objects>
<placeholder placeholderIdentifier="IBFilesOwner" id="-1" customClass="Card">
<connections><outlet property="box" destination="box" id="o"/></connections></placeholder>
<view id="box"><subviews>)" +
         subviews + "</subviews><constraints>" + constraints +
         "</constraints></view></objects></document>";
}

/// A label of 10-point text that constraints place.
inline std::string labelElement(const std::string& id, const std::string& text,
                                const std::string& lines = "0") {
  return "<label id='" + id + "' text='" + text + "' numberOfLines='" + lines +
         "' translatesAutoresizingMaskIntoConstraints='NO'>"
         "<fontDescription key='fontDescription' type='system' pointSize='10'/></label>";
}

/// "a.top = b.bottom + 8", where "box" may go unnamed and the right side may be a number.
inline std::string constraintElement(const std::string& first, const std::string& firstAttribute,
                                     const std::string& relation, const std::string& second,
                                     const std::string& secondAttribute, int constant) {
  const auto attribute = [](const std::string& name, const std::string& value) {
    return value.empty() ? "" : " " + name + "='" + value + "'";
  };
  return "<constraint" + attribute("firstItem", first) +
         attribute("firstAttribute", firstAttribute) + attribute("relation", relation) +
         attribute("secondItem", second) + attribute("secondAttribute", secondAttribute) +
         attribute("constant", std::to_string(constant)) + "/>";
}

}  // namespace quorix::testing
