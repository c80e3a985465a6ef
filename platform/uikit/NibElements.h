#pragma once

#include <optional>
#include <pugixml.hpp>
#include <string>
#include <string_view>
#include <vector>

#include "platform/uikit/NibDocument.h"

namespace quorix::uikit {

/// Reads the attributes of an interface file's elements. Stores the first refusal and continues;
/// the result is then not used.
class NibElements {
 public:
  explicit NibElements(std::string_view xml);

  /// "7: why", where 7 is the line.
  const std::optional<std::string>& refusal() const { return refusal_; }
  void refuse(pugi::xml_node at, const std::string& why) { refuseAt(at.offset_debug(), why); }
  void refuseAt(std::ptrdiff_t offset, const std::string& why);
  void refuseKind(pugi::xml_node at) { refuse(at, tag(at) + " is not supported"); }
  NibDocument::Line line(pugi::xml_node of) const { return lineAt(of.offset_debug()); }

  /// Refuses attributes that are not in `known`, a list of words separated by blanks.
  void checkAttributes(pugi::xml_node node, std::string_view known);
  /// Refuses a value of the attribute that is not in `values`. The attribute may be absent.
  void expect(pugi::xml_node node, const char* attribute, std::string_view values);
  bool flag(pugi::xml_node node, const char* attribute, bool otherwise);
  /// Points. Refuses an absent attribute if there is no `otherwise`.
  double number(pugi::xml_node node, const char* attribute, std::optional<double> otherwise);

  /// "<name>", for messages.
  static std::string tag(pugi::xml_node node) { return '<' + std::string(node.name()) + '>'; }

 private:
  NibDocument::Line lineAt(std::ptrdiff_t offset) const;

  std::vector<std::ptrdiff_t>
      lineEnds_;  // cached, because every constraint and outlet stores its line
  std::optional<std::string> refusal_;
};

}  // namespace quorix::uikit
