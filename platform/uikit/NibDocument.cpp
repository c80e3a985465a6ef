#include "platform/uikit/NibDocument.h"

#include <algorithm>
#include <cmath>
#include <map>
#include <utility>

#include "platform/uikit/NibElements.h"

namespace quorix::uikit {
namespace {

constexpr int deepest = 32;

// Attributes that are read below, and others that the designer's tool writes and that have no
// effect here.
constexpr std::string_view viewAttributes =
    "id userLabel contentMode opaque hidden userInteractionEnabled "
    "translatesAutoresizingMaskIntoConstraints";
constexpr std::string_view labelAttributes =
    "id userLabel contentMode opaque hidden userInteractionEnabled "
    "translatesAutoresizingMaskIntoConstraints horizontalHuggingPriority verticalHuggingPriority "
    "text textAlignment lineBreakMode numberOfLines baselineAdjustment adjustsFontSizeToFit";

std::string tag(pugi::xml_node node) { return NibElements::tag(node); }

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
  // Read at the end, because constraints may refer to any view.
  std::vector<Joined> constraints_;
  std::vector<pugi::xml_node> outlets_;
};

foundation::Result<NibDocument> NibReader::read() {
  pugi::xml_document file;
  const auto parsed = file.load_buffer(xml_.data(), xml_.size());
  if (parsed) {
    readDocument(file.document_element());
    for (const Joined& joined : constraints_) readConstraint(joined);
    for (const pugi::xml_node outlet : outlets_) readOutlet(outlet);
  } else {
    elements_.refuseAt(parsed.offset, parsed.description());
  }
  if (const auto& refusal = elements_.refusal()) return foundation::Error{"Nib", 1, *refusal};
  return std::move(document_);
}

void NibReader::readDocument(pugi::xml_node document) {
  constexpr std::string_view type = "com.apple.InterfaceBuilder3.CocoaTouch.XIB";
  if (std::string_view(document.name()) != "document" ||
      document.attribute("type").value() != type) {
    return elements_.refuse(document, "not an interface file");
  }
  for (const pugi::xml_node part : document.children()) {
    const std::string_view kind = part.name();
    if (kind == "device" || kind == "dependencies") continue;  // written by the tool for itself
    if (kind != "objects") {
      elements_.refuse(part, tag(part) + " is not supported");
      continue;
    }
    for (const pugi::xml_node object : part.children()) {
      if (std::string_view(object.name()) == "placeholder") {
        readPlaceholder(object);
      } else {
        readView(object, std::nullopt, 0);
      }
    }
  }
}

void NibReader::readPlaceholder(pugi::xml_node placeholder) {
  elements_.checkAttributes(placeholder,
                            "placeholderIdentifier id userLabel customClass customModule");
  elements_.expect(placeholder, "placeholderIdentifier", "IBFilesOwner IBFirstResponder");
  const bool isOwner =
      std::string_view(placeholder.attribute("placeholderIdentifier").value()) == "IBFilesOwner";
  if (isOwner) {
    document_.owners.push_back({line(placeholder), placeholder.attribute("customClass").value()});
  }
  for (const pugi::xml_node part : placeholder.children()) {
    if (!isOwner || std::string_view(part.name()) != "connections") {
      elements_.refuse(part, tag(part) + " of a placeholder is not supported");
      continue;
    }
    for (const pugi::xml_node outlet : part.children()) outlets_.push_back(outlet);
  }
}

void NibReader::readView(pugi::xml_node node, std::optional<std::size_t> superview, int depth) {
  if (depth == deepest) return elements_.refuse(node, "views nested too deep");
  const std::string_view kind = node.name();
  if (kind != "view" && kind != "label") {
    return elements_.refuse(node, tag(node) + " is not supported");
  }
  const std::size_t index = document_.views.size();
  document_.views.push_back(read(node));
  document_.views.back().superview = superview;
  const std::string id = node.attribute("id").value();
  if (id.empty() || !byId_.emplace(id, index).second) {
    elements_.refuse(node, "an id of its own is missing");
  }
  for (const pugi::xml_node part : node.children()) readPart(part, index, depth);
}

NibReader::View NibReader::read(pugi::xml_node node) {
  const bool isLabel = std::string_view(node.name()) == "label";
  elements_.checkAttributes(node, isLabel ? labelAttributes : viewAttributes);
  View view;
  if (isLabel) view.label = readLabel(node);
  view.opaque = elements_.flag(node, "opaque", true);
  view.hidden = elements_.flag(node, "hidden", false);
  view.userInteractionEnabled = elements_.flag(node, "userInteractionEnabled", !isLabel);
  view.translatesMask = elements_.flag(node, "translatesAutoresizingMaskIntoConstraints", true);
  return view;
}

NibDocument::Label NibReader::readLabel(pugi::xml_node node) {
  elements_.expect(node, "textAlignment", "natural");
  elements_.expect(node, "lineBreakMode", "wordWrap tailTruncation");
  elements_.expect(node, "adjustsFontSizeToFit", "NO");
  NibDocument::Label label;
  label.text = node.attribute("text").value();
  label.numberOfLines = static_cast<int>(elements_.number(node, "numberOfLines", 1));
  return label;
}

void NibReader::readPart(pugi::xml_node part, std::size_t index, int depth) {
  const std::string_view kind = part.name();
  View& view = document_.views[index];
  if (kind == "rect") {
    readFrame(part, view);
  } else if (kind == "fontDescription") {
    readFont(part, view);
  } else if (kind == "color") {
    readColor(part, view);
  } else if (kind == "nil") {
    elements_.checkAttributes(part, "key");
    elements_.expect(part, "key", "textColor highlightedColor backgroundColor");
  } else if (kind == "accessibility") {
    readAccessibility(part, view);
  } else if (kind == "subviews") {
    for (const pugi::xml_node node : part.children()) readView(node, index, depth + 1);
  } else if (kind == "constraints") {
    for (const pugi::xml_node node : part.children()) constraints_.push_back({node, index});
  } else if (kind != "autoresizingMask" || depth > 0) {  // the owner places the outermost view
    elements_.refuse(part, tag(part) + " of a view is not supported");
  }
}

void NibReader::readFrame(pugi::xml_node rect, View& view) {
  elements_.checkAttributes(rect, "key x y width height");
  elements_.expect(rect, "key", "frame");
  const auto points = [&](const char* name) { return elements_.number(rect, name, std::nullopt); };
  view.frame = {{points("x"), points("y")}, {points("width"), points("height")}};
}

void NibReader::readFont(pugi::xml_node font, View& view) {
  elements_.checkAttributes(font, "key type pointSize");
  elements_.expect(font, "type", "system");
  const double points = elements_.number(font, "pointSize", std::nullopt);
  if (!view.label || points <= 0) return elements_.refuse(font, "not a font for this view");
  view.label->font = UIFont::system(points);
}

void NibReader::readColor(pugi::xml_node color, View& view) {
  elements_.checkAttributes(color, "key red green blue alpha colorSpace customColorSpace");
  elements_.expect(color, "key", "backgroundColor textColor");
  const auto channel = [&](const char* name) {
    const double value = std::clamp(elements_.number(color, name, std::nullopt), 0.0, 1.0);
    return static_cast<std::uint8_t>(std::lround(value * 255));
  };
  const std::string_view space = color.attribute("customColorSpace").value();
  if (space != "sRGB") return elements_.refuse(color, "a color is not in sRGB");
  auto value =
      UIColor::fixed({channel("red"), channel("green"), channel("blue"), channel("alpha")});
  if (std::string_view(color.attribute("key").value()) == "backgroundColor") {
    view.backgroundColor = std::move(value);
  } else if (view.label) {
    view.label->textColor = std::move(value);
  } else {
    elements_.refuse(color, "only labels have a text color");
  }
}

void NibReader::readAccessibility(pugi::xml_node accessibility, View& view) {
  elements_.checkAttributes(accessibility, "key label");
  elements_.expect(accessibility, "key", "accessibilityConfiguration");
  if (const auto label = accessibility.attribute("label")) view.accessibilityLabel = label.value();
  for (const pugi::xml_node traits : accessibility.children()) {
    if (std::string_view(traits.name()) != "accessibilityTraits") {
      elements_.refuse(traits, tag(traits) + " is not supported");
    }
    elements_.checkAttributes(traits, "key button link header");
    using enum UIAccessibilityTraits;
    if (elements_.flag(traits, "button", false)) view.accessibilityTraits = button;
    if (elements_.flag(traits, "link", false)) view.accessibilityTraits = link;
    if (elements_.flag(traits, "header", false)) view.accessibilityTraits = header;
  }
}

void NibReader::readConstraint(const Joined& joined) {
  const pugi::xml_node node = joined.constraint;
  elements_.checkAttributes(
      node, "firstItem firstAttribute relation secondItem secondAttribute constant priority id");
  elements_.expect(node, "relation", "equal lessThanOrEqual greaterThanOrEqual");
  elements_.expect(node, "priority", "1000");
  const auto first = edge(node, "firstAttribute");
  if (!first || std::string_view(node.name()) != "constraint") {
    return elements_.refuse(node, "a constraint's first edge is missing");
  }
  const auto second = edge(node, "secondAttribute");
  const std::string_view relation = node.attribute("relation").value();
  document_.constraints.push_back({line(node), joined.holder, item(joined, "firstItem"), *first,
                                   relation == "lessThanOrEqual" ? LayoutRelation::lessThanOrEqual
                                   : relation == "greaterThanOrEqual"
                                       ? LayoutRelation::greaterThanOrEqual
                                       : LayoutRelation::equal,
                                   second ? item(joined, "secondItem") : std::nullopt, second,
                                   elements_.number(node, "constant", 0)});
}

std::optional<LayoutAttribute> NibReader::edge(pugi::xml_node constraint, const char* attribute) {
  static const std::map<std::string_view, LayoutAttribute> known = {
      {"left", LayoutAttribute::left},       {"right", LayoutAttribute::right},
      {"leading", LayoutAttribute::leading}, {"trailing", LayoutAttribute::trailing},
      {"top", LayoutAttribute::top},         {"bottom", LayoutAttribute::bottom},
      {"width", LayoutAttribute::width},     {"height", LayoutAttribute::height}};
  const auto found = known.find(constraint.attribute(attribute).value());
  if (found != known.end()) return found->second;
  if (constraint.attribute(attribute)) {
    elements_.refuse(constraint, "a constraint's edge is not supported");
  }
  return std::nullopt;
}

/// The view that a constraint names, or else the view that holds the constraint.
std::optional<std::size_t> NibReader::item(const Joined& joined, const char* attribute) const {
  const auto id = joined.constraint.attribute(attribute);
  return id ? named(id.value()) : joined.holder;
}

void NibReader::readOutlet(pugi::xml_node outlet) {
  elements_.checkAttributes(outlet, "property destination id");
  if (std::string_view(outlet.name()) != "outlet") {
    return elements_.refuse(outlet, tag(outlet) + " is not supported");
  }
  document_.outlets.push_back({line(outlet), outlet.attribute("property").value(),
                               named(outlet.attribute("destination").value())});
}

std::optional<std::size_t> NibReader::named(std::string_view id) const {
  const auto found = byId_.find(id);
  return found == byId_.end() ? std::nullopt : std::optional(found->second);
}

}  // namespace

foundation::Result<NibDocument> readNib(std::string_view xml) { return NibReader(xml).read(); }

}  // namespace quorix::uikit
