#pragma once

#include <map>
#include <optional>
#include <pugixml.hpp>
#include <string>
#include <string_view>
#include <vector>

#include "platform/uikit/Nib.h"

namespace quorix::uikit {

/// Reads one interface file. After a refusal it reads on, to no effect.
class NibReader {
 public:
  NibReader(std::string_view xml, std::string_view name) : xml_(xml), name_(name) {}

  foundation::Result<Nib::Views> read(std::string_view owner, const Nib::Outlets& outlets);

 private:
  struct Connection {
    pugi::xml_node outlet;
    std::string property;
    std::string destination;
  };
  struct Joined {
    pugi::xml_node constraint;
    std::shared_ptr<UIView> holder;
  };

  void refuse(pugi::xml_node at, const std::string& why);
  void refuseAt(std::ptrdiff_t offset, const std::string& why);

  /// Refuses attributes that `known` does not name: words between blanks.
  void checkAttributes(pugi::xml_node node, std::string_view known);
  bool flag(pugi::xml_node node, const char* attribute, bool otherwise);
  double number(pugi::xml_node node, const char* attribute, std::optional<double> otherwise);
  void expect(pugi::xml_node node, const char* attribute, std::string_view values);

  void readDocument(pugi::xml_node document, std::string_view owner);
  void readPlaceholder(pugi::xml_node placeholder, std::string_view owner);
  std::shared_ptr<UIView> readView(pugi::xml_node node, int depth);
  std::shared_ptr<UILabel> makeLabel(pugi::xml_node node);
  void readPart(pugi::xml_node part, const std::shared_ptr<UIView>& view, int depth);
  void readFrame(pugi::xml_node rect, UIView& view);
  void readFont(pugi::xml_node font, UIView& view);
  void readColor(pugi::xml_node color, UIView& view);
  void readAccessibility(pugi::xml_node accessibility, UIView& view);

  void join(const Joined& joined);
  std::optional<LayoutAttribute> edge(pugi::xml_node constraint, const char* attribute);
  std::shared_ptr<UIView> item(const Joined& joined, const char* attribute);
  void connect(const Connection& connection, const Nib::Outlets& outlets, bool check);

  std::string_view xml_;
  std::string name_;
  std::optional<std::string> refusal_;
  Nib::Views views_;
  std::map<std::string, std::shared_ptr<UIView>, std::less<>> byId_;
  std::vector<Joined> constraints_;
  std::vector<Connection> connections_;
};

}  // namespace quorix::uikit
