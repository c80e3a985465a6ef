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

class NibReader : NibElements {
 public:
  explicit NibReader(std::string_view xml) : NibElements(xml), xml_(xml) {}

  foundation::Result<NibDocument> read() {
    pugi::xml_document file;
    const auto parsed = file.load_buffer(xml_.data(), xml_.size());
    if (parsed) {
      readDocument(file.document_element());
      for (const Joined& joined : constraints_) readConstraint(joined);
      for (const pugi::xml_node outlet : outlets_) readOutlet(outlet);
    } else {
      refuseAt(parsed.offset, parsed.description());
    }
    if (const auto& why = refusal()) return foundation::Error{"Nib", 1, *why};
    return std::move(document_);
  }

 private:
  using View = NibDocument::View;
  struct Joined {
    pugi::xml_node constraint;
    std::size_t holder;
  };

  void readDocument(pugi::xml_node document) {
    constexpr std::string_view type = "com.apple.InterfaceBuilder3.CocoaTouch.XIB";
    if (std::string_view(document.name()) != "document" ||
        document.attribute("type").value() != type) {
      return refuse(document, "not an interface file");
    }
    for (const pugi::xml_node part : document.children()) {
      const std::string_view kind = part.name();
      if (kind == "device" || kind == "dependencies") continue;  // written by the tool for itself
      if (kind != "objects") {
        refuseKind(part);
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

  void readPlaceholder(pugi::xml_node placeholder) {
    checkAttributes(placeholder, "placeholderIdentifier id userLabel customClass customModule");
    expect(placeholder, "placeholderIdentifier", "IBFilesOwner IBFirstResponder");
    const bool isOwner =
        std::string_view(placeholder.attribute("placeholderIdentifier").value()) == "IBFilesOwner";
    if (isOwner) {
      document_.owners.push_back({line(placeholder), placeholder.attribute("customClass").value()});
    }
    for (const pugi::xml_node part : placeholder.children()) {
      if (!isOwner || std::string_view(part.name()) != "connections") {
        refuse(part, tag(part) + " of a placeholder is not supported");
        continue;
      }
      for (const pugi::xml_node outlet : part.children()) outlets_.push_back(outlet);
    }
  }

  void readView(pugi::xml_node node, std::optional<std::size_t> superview, int depth) {
    if (depth == deepest) return refuse(node, "views nested too deep");
    const std::string_view kind = node.name();
    if (kind != "view" && kind != "label") return refuseKind(node);
    const std::size_t index = document_.views.size();
    document_.views.push_back(read(node));
    document_.views.back().superview = superview;
    const std::string id = node.attribute("id").value();
    if (id.empty() || !byId_.emplace(id, index).second) {
      refuse(node, "an id of its own is missing");
    }
    for (const pugi::xml_node part : node.children()) readPart(part, index, depth);
  }

  View read(pugi::xml_node node) {
    const bool isLabel = std::string_view(node.name()) == "label";
    checkAttributes(node, isLabel ? labelAttributes : viewAttributes);
    View view;
    if (isLabel) view.label = readLabel(node);
    view.opaque = flag(node, "opaque", true);
    view.hidden = flag(node, "hidden", false);
    view.userInteractionEnabled = flag(node, "userInteractionEnabled", !isLabel);
    view.translatesMask = flag(node, "translatesAutoresizingMaskIntoConstraints", true);
    return view;
  }

  NibDocument::Label readLabel(pugi::xml_node node) {
    expect(node, "textAlignment", "natural");
    expect(node, "lineBreakMode", "wordWrap tailTruncation");
    expect(node, "adjustsFontSizeToFit", "NO");
    NibDocument::Label label;
    label.text = node.attribute("text").value();
    label.numberOfLines = static_cast<int>(number(node, "numberOfLines", 1));
    return label;
  }

  void readPart(pugi::xml_node part, std::size_t index, int depth) {
    const std::string_view kind = part.name();
    View& view = document_.views[index];
    if (kind == "rect") {
      readFrame(part, view);
    } else if (kind == "fontDescription") {
      readFont(part, view);
    } else if (kind == "color") {
      readColor(part, view);
    } else if (kind == "nil") {
      checkAttributes(part, "key");
      expect(part, "key", "textColor highlightedColor backgroundColor");
    } else if (kind == "accessibility") {
      readAccessibility(part, view);
    } else if (kind == "subviews") {
      for (const pugi::xml_node node : part.children()) readView(node, index, depth + 1);
    } else if (kind == "constraints") {
      for (const pugi::xml_node node : part.children()) constraints_.push_back({node, index});
    } else if (kind != "autoresizingMask" || depth > 0) {  // the owner places the outermost view
      refuse(part, tag(part) + " of a view is not supported");
    }
  }

  void readFrame(pugi::xml_node rect, View& view) {
    checkAttributes(rect, "key x y width height");
    expect(rect, "key", "frame");
    const auto points = [&](const char* name) { return number(rect, name, std::nullopt); };
    view.frame = {{points("x"), points("y")}, {points("width"), points("height")}};
  }

  void readFont(pugi::xml_node font, View& view) {
    checkAttributes(font, "key type pointSize");
    expect(font, "type", "system");
    const double points = number(font, "pointSize", std::nullopt);
    if (!view.label || points <= 0) return refuse(font, "not a font for this view");
    view.label->font = UIFont::system(points);
  }

  void readColor(pugi::xml_node color, View& view) {
    checkAttributes(color, "key red green blue alpha colorSpace customColorSpace");
    expect(color, "key", "backgroundColor textColor");
    const auto channel = [&](const char* name) {
      const double value = std::clamp(number(color, name, std::nullopt), 0.0, 1.0);
      return static_cast<std::uint8_t>(std::lround(value * 255));
    };
    const std::string_view space = color.attribute("customColorSpace").value();
    if (space != "sRGB") return refuse(color, "a color is not in sRGB");
    auto value =
        UIColor::fixed({channel("red"), channel("green"), channel("blue"), channel("alpha")});
    if (std::string_view(color.attribute("key").value()) == "backgroundColor") {
      view.backgroundColor = std::move(value);
    } else if (view.label) {
      view.label->textColor = std::move(value);
    } else {
      refuse(color, "only labels have a text color");
    }
  }

  void readAccessibility(pugi::xml_node accessibility, View& view) {
    checkAttributes(accessibility, "key label");
    expect(accessibility, "key", "accessibilityConfiguration");
    if (const auto label = accessibility.attribute("label")) {
      view.accessibilityLabel = label.value();
    }
    for (const pugi::xml_node traits : accessibility.children()) {
      if (std::string_view(traits.name()) != "accessibilityTraits") refuseKind(traits);
      checkAttributes(traits, "key button link header");
      using enum UIAccessibilityTraits;
      if (flag(traits, "button", false)) view.accessibilityTraits = button;
      if (flag(traits, "link", false)) view.accessibilityTraits = link;
      if (flag(traits, "header", false)) view.accessibilityTraits = header;
    }
  }

  void readConstraint(const Joined& joined) {
    const pugi::xml_node node = joined.constraint;
    checkAttributes(
        node, "firstItem firstAttribute relation secondItem secondAttribute constant priority id");
    expect(node, "relation", "equal lessThanOrEqual greaterThanOrEqual");
    expect(node, "priority", "1000");
    const auto first = edge(node, "firstAttribute");
    if (!first || std::string_view(node.name()) != "constraint") {
      return refuse(node, "a constraint's first edge is missing");
    }
    const auto second = edge(node, "secondAttribute");
    const std::string_view relation = node.attribute("relation").value();
    document_.constraints.push_back(
        {line(node), joined.holder, item(joined, "firstItem"), *first,
         relation == "lessThanOrEqual"      ? LayoutRelation::lessThanOrEqual
         : relation == "greaterThanOrEqual" ? LayoutRelation::greaterThanOrEqual
                                            : LayoutRelation::equal,
         second ? item(joined, "secondItem") : std::nullopt, second, number(node, "constant", 0)});
  }

  std::optional<LayoutAttribute> edge(pugi::xml_node constraint, const char* attribute) {
    static const std::map<std::string_view, LayoutAttribute> known = {
        {"left", LayoutAttribute::left},       {"right", LayoutAttribute::right},
        {"leading", LayoutAttribute::leading}, {"trailing", LayoutAttribute::trailing},
        {"top", LayoutAttribute::top},         {"bottom", LayoutAttribute::bottom},
        {"width", LayoutAttribute::width},     {"height", LayoutAttribute::height}};
    const auto found = known.find(constraint.attribute(attribute).value());
    if (found != known.end()) return found->second;
    if (constraint.attribute(attribute)) refuse(constraint, "a constraint's edge is not supported");
    return std::nullopt;
  }

  /// The view that a constraint names, or else the view that holds the constraint.
  std::optional<std::size_t> item(const Joined& joined, const char* attribute) const {
    const auto id = joined.constraint.attribute(attribute);
    return id ? named(id.value()) : joined.holder;
  }

  void readOutlet(pugi::xml_node outlet) {
    checkAttributes(outlet, "property destination id");
    if (std::string_view(outlet.name()) != "outlet") return refuseKind(outlet);
    document_.outlets.push_back({line(outlet), outlet.attribute("property").value(),
                                 named(outlet.attribute("destination").value())});
  }

  std::optional<std::size_t> named(std::string_view id) const {
    const auto found = byId_.find(id);
    return found == byId_.end() ? std::nullopt : std::optional(found->second);
  }

  std::string_view xml_;
  NibDocument document_;
  std::map<std::string, std::size_t, std::less<>> byId_;
  // Read at the end, because constraints may refer to any view.
  std::vector<Joined> constraints_;
  std::vector<pugi::xml_node> outlets_;
};

}  // namespace

foundation::Result<NibDocument> readNib(std::string_view xml) { return NibReader(xml).read(); }

}  // namespace quorix::uikit
