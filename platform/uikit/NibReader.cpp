#include "platform/uikit/NibReader.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <utility>

namespace quorix::uikit {
namespace {

constexpr int deepest = 32;
constexpr double longest = 1e6;  // points; nothing sensible is longer

// What the designer's tool writes and what changes nothing here, or what is read below.
constexpr std::string_view viewAttributes =
    "id userLabel contentMode opaque hidden userInteractionEnabled "
    "translatesAutoresizingMaskIntoConstraints";
constexpr std::string_view labelAttributes =
    "id userLabel contentMode opaque hidden userInteractionEnabled "
    "translatesAutoresizingMaskIntoConstraints horizontalHuggingPriority verticalHuggingPriority "
    "text textAlignment lineBreakMode numberOfLines baselineAdjustment adjustsFontSizeToFit";

bool isWordOf(std::string_view words, std::string_view word) {
  const std::string spaced = ' ' + std::string(words) + ' ';
  return !word.empty() && spaced.find(' ' + std::string(word) + ' ') != std::string::npos;
}

std::string tag(pugi::xml_node node) { return '<' + std::string(node.name()) + '>'; }

}  // namespace

foundation::Result<Nib::Views> NibReader::read(std::string_view owner,
                                               const Nib::Outlets& outlets) {
  pugi::xml_document file;
  const auto parsed = file.load_buffer(xml_.data(), xml_.size());
  if (parsed) {
    readDocument(file.document_element(), owner);
    for (const Joined& joined : constraints_) join(joined);
    for (const Connection& connection : connections_) connect(connection, outlets, true);
  } else {
    refuseAt(parsed.offset, parsed.description());
  }
  if (refusal_) return foundation::Error{"Nib", 1, *refusal_};
  for (const Connection& connection : connections_) connect(connection, outlets, false);
  return std::move(views_);
}

void NibReader::refuse(pugi::xml_node at, const std::string& why) {
  refuseAt(at.offset_debug(), why);
}

void NibReader::refuseAt(std::ptrdiff_t offset, const std::string& why) {
  if (refusal_) return;
  const auto length = std::clamp<std::ptrdiff_t>(offset, 0, std::ssize(xml_));
  const auto line = 1 + std::count(xml_.begin(), xml_.begin() + length, '\n');
  refusal_ = name_ + ".xib:" + std::to_string(line) + ": " + why;
}

void NibReader::checkAttributes(pugi::xml_node node, std::string_view known) {
  for (const pugi::xml_attribute attribute : node.attributes()) {
    if (isWordOf(known, attribute.name())) continue;
    refuse(node, "the attribute " + std::string(attribute.name()) + " of " + tag(node) +
                     " is not supported");
  }
}

bool NibReader::flag(pugi::xml_node node, const char* attribute, bool otherwise) {
  if (!node.attribute(attribute)) return otherwise;
  expect(node, attribute, "YES NO");
  return std::string_view(node.attribute(attribute).value()) == "YES";
}

double NibReader::number(pugi::xml_node node, const char* attribute,
                         std::optional<double> otherwise) {
  const std::string_view text = node.attribute(attribute).value();
  if (text.empty() && otherwise) return *otherwise;
  double value = 0;
  const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), value);
  const bool whole = error == std::errc() && end == text.data() + text.size();
  if (whole && std::abs(value) <= longest) return value;
  refuse(node, std::string(attribute) + " of " + tag(node) + " is no number of points");
  return 0;
}

/// Refuses a value of the attribute, which may be absent, that is none of `values`.
void NibReader::expect(pugi::xml_node node, const char* attribute, std::string_view values) {
  const std::string value = node.attribute(attribute).value();
  if (!node.attribute(attribute) || isWordOf(values, value)) return;
  refuse(node, std::string(attribute) + " '" + value + "' of " + tag(node) + " is not supported");
}

void NibReader::readDocument(pugi::xml_node document, std::string_view owner) {
  constexpr std::string_view type = "com.apple.InterfaceBuilder3.CocoaTouch.XIB";
  if (std::string_view(document.name()) != "document" ||
      document.attribute("type").value() != type) {
    return refuse(document, "not an interface file");
  }
  for (const pugi::xml_node part : document.children()) {
    const std::string_view kind = part.name();
    if (kind == "device" || kind == "dependencies") continue;  // the tool's own
    if (kind != "objects") {
      refuse(part, tag(part) + " is not supported");
      continue;
    }
    for (const pugi::xml_node object : part.children()) {
      if (std::string_view(object.name()) == "placeholder") {
        readPlaceholder(object, owner);
      } else if (auto view = readView(object, 0)) {
        views_.push_back(std::move(view));
      }
    }
  }
}

void NibReader::readPlaceholder(pugi::xml_node placeholder, std::string_view owner) {
  checkAttributes(placeholder, "placeholderIdentifier id userLabel customClass customModule");
  expect(placeholder, "placeholderIdentifier", "IBFilesOwner IBFirstResponder");
  const bool isOwner =
      std::string_view(placeholder.attribute("placeholderIdentifier").value()) == "IBFilesOwner";
  if (isOwner && placeholder.attribute("customClass").value() != owner) {
    refuse(placeholder, "the owner is no " + std::string(owner));
  }
  for (const pugi::xml_node part : placeholder.children()) {
    if (!isOwner || std::string_view(part.name()) != "connections") {
      refuse(part, tag(part) + " of a placeholder is not supported");
      continue;
    }
    for (const pugi::xml_node outlet : part.children()) {
      checkAttributes(outlet, "property destination id");
      if (std::string_view(outlet.name()) != "outlet") {
        refuse(outlet, tag(outlet) + " is not supported");
      }
      connections_.push_back(
          {outlet, outlet.attribute("property").value(), outlet.attribute("destination").value()});
    }
  }
}

std::shared_ptr<UIView> NibReader::readView(pugi::xml_node node, int depth) {
  const std::string_view kind = node.name();
  if ((kind != "view" && kind != "label") || depth == deepest) {
    refuse(node, depth == deepest ? "views nested too deep" : tag(node) + " is not supported");
    return nullptr;
  }
  const bool isLabel = kind == "label";
  checkAttributes(node, isLabel ? labelAttributes : viewAttributes);
  const auto view = isLabel ? makeLabel(node) : std::make_shared<UIView>();
  view->setOpaque(flag(node, "opaque", true));
  view->setHidden(flag(node, "hidden", false));
  view->setUserInteractionEnabled(flag(node, "userInteractionEnabled", !isLabel));
  view->setTranslatesAutoresizingMaskIntoConstraints(
      flag(node, "translatesAutoresizingMaskIntoConstraints", true));
  const std::string id = node.attribute("id").value();
  if (id.empty() || !byId_.emplace(id, view).second) refuse(node, "an id of its own is missing");
  for (const pugi::xml_node part : node.children()) readPart(part, view, depth);
  return view;
}

std::shared_ptr<UILabel> NibReader::makeLabel(pugi::xml_node node) {
  expect(node, "textAlignment", "natural");
  expect(node, "lineBreakMode", "wordWrap tailTruncation");
  expect(node, "adjustsFontSizeToFit", "NO");
  const auto label = std::make_shared<UILabel>();
  label->setText(node.attribute("text").value());
  label->setNumberOfLines(static_cast<int>(number(node, "numberOfLines", 1)));
  return label;
}

void NibReader::readPart(pugi::xml_node part, const std::shared_ptr<UIView>& view, int depth) {
  const std::string_view kind = part.name();
  if (kind == "rect") {
    readFrame(part, *view);
  } else if (kind == "fontDescription") {
    readFont(part, *view);
  } else if (kind == "color") {
    readColor(part, *view);
  } else if (kind == "nil") {
    checkAttributes(part, "key");
    expect(part, "key", "textColor highlightedColor backgroundColor");
  } else if (kind == "accessibility") {
    readAccessibility(part, *view);
  } else if (kind == "subviews") {
    for (const pugi::xml_node node : part.children()) {
      if (auto subview = readView(node, depth + 1)) view->addSubview(std::move(subview));
    }
  } else if (kind == "constraints") {
    for (const pugi::xml_node node : part.children()) constraints_.push_back({node, view});
  } else if (kind != "autoresizingMask" || depth > 0) {  // the owner places the outermost view
    refuse(part, tag(part) + " of a view is not supported");
  }
}

void NibReader::readFrame(pugi::xml_node rect, UIView& view) {
  checkAttributes(rect, "key x y width height");
  expect(rect, "key", "frame");
  view.setFrame({{number(rect, "x", std::nullopt), number(rect, "y", std::nullopt)},
                 {number(rect, "width", std::nullopt), number(rect, "height", std::nullopt)}});
}

void NibReader::readFont(pugi::xml_node font, UIView& view) {
  checkAttributes(font, "key type pointSize");
  expect(font, "type", "system");
  auto* label = dynamic_cast<UILabel*>(&view);
  const double points = number(font, "pointSize", std::nullopt);
  if (label == nullptr || points <= 0) return refuse(font, "not a font for this view");
  label->setFont(UIFont::system(points));
}

void NibReader::readColor(pugi::xml_node color, UIView& view) {
  checkAttributes(color, "key red green blue alpha colorSpace customColorSpace");
  expect(color, "key", "backgroundColor textColor");
  const auto channel = [&](const char* name) {
    const double value = std::clamp(number(color, name, std::nullopt), 0.0, 1.0);
    return static_cast<std::uint8_t>(std::lround(value * 255));
  };
  const std::string_view space = color.attribute("customColorSpace").value();
  if (space != "sRGB") return refuse(color, "a colour is not in sRGB");
  auto value =
      UIColor::fixed({channel("red"), channel("green"), channel("blue"), channel("alpha")});
  auto* label = dynamic_cast<UILabel*>(&view);
  if (std::string_view(color.attribute("key").value()) == "backgroundColor") {
    view.setBackgroundColor(std::move(value));
  } else if (label != nullptr) {
    label->setTextColor(std::move(value));
  } else {
    refuse(color, "only labels have a text colour");
  }
}

void NibReader::readAccessibility(pugi::xml_node accessibility, UIView& view) {
  checkAttributes(accessibility, "key label");
  expect(accessibility, "key", "accessibilityConfiguration");
  if (const auto label = accessibility.attribute("label")) {
    view.setAccessibilityLabel(label.value());
  }
  for (const pugi::xml_node traits : accessibility.children()) {
    if (std::string_view(traits.name()) != "accessibilityTraits") {
      refuse(traits, tag(traits) + " is not supported");
    }
    checkAttributes(traits, "key button link header");
    if (flag(traits, "button", false)) view.setAccessibilityTraits(UIAccessibilityTraits::button);
    if (flag(traits, "link", false)) view.setAccessibilityTraits(UIAccessibilityTraits::link);
    if (flag(traits, "header", false)) view.setAccessibilityTraits(UIAccessibilityTraits::header);
  }
}

std::optional<LayoutAttribute> NibReader::edge(pugi::xml_node constraint, const char* attribute) {
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

/// The view that a constraint names; the one whose constraint it is where it names none.
std::shared_ptr<UIView> NibReader::item(const Joined& joined, const char* attribute) {
  const auto named = joined.constraint.attribute(attribute);
  if (!named) return joined.holder;
  const auto found = byId_.find(named.value());
  return found == byId_.end() ? nullptr : found->second;
}

void NibReader::join(const Joined& joined) {
  const pugi::xml_node node = joined.constraint;
  checkAttributes(
      node, "firstItem firstAttribute relation secondItem secondAttribute constant priority id");
  expect(node, "relation", "equal lessThanOrEqual greaterThanOrEqual");
  expect(node, "priority", "1000");
  const auto first = edge(node, "firstAttribute");
  NSLayoutConstraint constraint;
  constraint.firstItem = item(joined, "firstItem");
  if (first) constraint.firstAttribute = *first;
  const std::string_view relation = node.attribute("relation").value();
  if (relation == "lessThanOrEqual") constraint.relation = LayoutRelation::lessThanOrEqual;
  if (relation == "greaterThanOrEqual") constraint.relation = LayoutRelation::greaterThanOrEqual;
  constraint.secondAttribute = edge(node, "secondAttribute");
  if (constraint.secondAttribute) constraint.secondItem = item(joined, "secondItem");
  constraint.constant = number(node, "constant", 0);
  const bool stands = first && std::string_view(node.name()) == "constraint" &&
                      constraint.holder() == joined.holder.get();
  if (!stands) return refuse(node, "a constraint does not join its view and what is in it");
  NSLayoutConstraint::activate({constraint});
}

void NibReader::connect(const Connection& connection, const Nib::Outlets& outlets, bool check) {
  const auto found = byId_.find(connection.destination);
  const auto target = found == byId_.end() ? nullptr : found->second;
  const auto label = std::dynamic_pointer_cast<UILabel>(target);
  const auto forView = outlets.views.find(connection.property);
  const auto forLabel = outlets.labels.find(connection.property);
  const bool takesView = target && forView != outlets.views.end();
  const bool takesLabel = label && forLabel != outlets.labels.end();
  if (check && !takesView && !takesLabel) {
    refuse(connection.outlet, "no outlet '" + connection.property + "' for this view");
  }
  if (check) return;
  if (takesView) *forView->second = target;
  if (takesLabel) *forLabel->second = label;
}

}  // namespace quorix::uikit
