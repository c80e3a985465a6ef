#pragma once

#include <sstream>
#include <string>

namespace quorix::testing {

/// An interface file with one view, "box", for the outlet `box` of a "Card". It contains `subviews`
/// and `constraints`.
inline std::string interfaceFile(const std::string& subviews, const std::string& constraints) {
  return R"(<document type="com.apple.InterfaceBuilder3.CocoaTouch.XIB"><objects>
<placeholder placeholderIdentifier="IBFilesOwner" id="-1" customClass="Card">
<connections><outlet property="box" destination="box" id="o"/></connections></placeholder>
<view id="box"><subviews>)" +
         subviews + "</subviews><constraints>" + constraints +
         "</constraints></view></objects></document>";
}

/// A label with 10-point text, placed by constraints.
inline std::string labelElement(const std::string& id, const std::string& text,
                                const std::string& lines = "0") {
  return "<label id='" + id + "' text='" + text + "' numberOfLines='" + lines +
         "' translatesAutoresizingMaskIntoConstraints='NO'>"
         "<fontDescription key='fontDescription' type='system' pointSize='10'/></label>";
}

/// Constraints such as "a.top b.bottom 8, .trailing >= b.trailing 24, .width 48". A side without a
/// view means the view that contains the constraint.
inline std::string constraintElements(const std::string& rules) {
  std::string elements, rule;
  for (std::istringstream all(rules); std::getline(all, rule, ',');) {
    elements += "<constraint";
    std::string side = "first";
    std::istringstream words(rule);
    for (std::string word; words >> word;) {
      const auto dot = word.find('.');
      if (word == ">=") {
        elements += " relation='greaterThanOrEqual'";
      } else if (dot == std::string::npos) {
        elements += " constant='" + word + "'";
      } else {
        if (dot > 0) elements += " " + side + "Item='" + word.substr(0, dot) + "'";
        elements += " " + side + "Attribute='" + word.substr(dot + 1) + "'";
        side = "second";
      }
    }
    elements += "/>";
  }
  return elements;
}

}  // namespace quorix::testing
