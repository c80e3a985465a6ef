#pragma once

#include <map>
#include <optional>
#include <pugixml.hpp>
#include <string>
#include <string_view>
#include <vector>

#include "platform/foundation/Result.h"
#include "platform/uikit/NibDocument.h"
#include "platform/uikit/NibElements.h"

namespace quorix::uikit {

/// Reads one interface file. A refusal's description begins with the line: "7: ...".
class NibReader {
 public:
  explicit NibReader(std::string_view xml) : xml_(xml), elements_(xml) {}

  foundation::Result<NibDocument> read();

 private:
  using View = NibDocument::View;
  struct Joined {
    pugi::xml_node constraint;
    std::size_t holder;
  };

  NibDocument::Line line(pugi::xml_node node) const { return elements_.line(node.offset_debug()); }

  void readDocument(pugi::xml_node document);
  void readPlaceholder(pugi::xml_node placeholder);
  void readView(pugi::xml_node node, std::optional<std::size_t> superview, int depth);
  View read(pugi::xml_node node);
  NibDocument::Label readLabel(pugi::xml_node node);
  void readPart(pugi::xml_node part, std::size_t index, int depth);
  void readFrame(pugi::xml_node rect, View& view);
  void readFont(pugi::xml_node font, View& view);
  void readColor(pugi::xml_node color, View& view);
  void readAccessibility(pugi::xml_node accessibility, View& view);
  void readConstraint(const Joined& joined);
  std::optional<LayoutAttribute> edge(pugi::xml_node constraint, const char* attribute);
  std::optional<std::size_t> item(const Joined& joined, const char* attribute) const;
  void readOutlet(pugi::xml_node outlet);
  std::optional<std::size_t> named(std::string_view id) const;

  std::string_view xml_;
  NibElements elements_;
  NibDocument document_;
  std::map<std::string, std::size_t, std::less<>> byId_;
  // Read last, for they may name any view.
  std::vector<Joined> constraints_;
  std::vector<pugi::xml_node> outlets_;
};

}  // namespace quorix::uikit
