#include "platform/uikit/NibElements.h"

#include <algorithm>
#include <cmath>

#include "platform/foundation/Numbers.h"

namespace quorix::uikit {
namespace {

constexpr double longest = 1e6;  // points; a longer one is an error

bool isWordOf(std::string_view words, std::string_view word) {
  const auto apart = [](std::string_view text) { return ' ' + std::string(text) + ' '; };
  return apart(words).find(apart(word)) != std::string::npos;
}

}  // namespace

NibElements::NibElements(std::string_view xml) {
  for (std::size_t end = xml.find('\n'); end != xml.npos; end = xml.find('\n', end + 1)) {
    lineEnds_.push_back(static_cast<std::ptrdiff_t>(end));
  }
}

NibDocument::Line NibElements::lineAt(std::ptrdiff_t offset) const {
  return 1 + (std::ranges::lower_bound(lineEnds_, offset) - lineEnds_.begin());
}

void NibElements::refuseAt(std::ptrdiff_t offset, const std::string& why) {
  if (!refusal_) refusal_ = std::to_string(lineAt(offset)) + ": " + why;
}

void NibElements::checkAttributes(pugi::xml_node node, std::string_view known) {
  for (const pugi::xml_attribute attribute : node.attributes()) {
    if (isWordOf(known, attribute.name())) continue;
    refuse(node, "the attribute " + std::string(attribute.name()) + " of " + tag(node) +
                     " is not supported");
  }
}

void NibElements::expect(pugi::xml_node node, const char* attribute, std::string_view values) {
  const pugi::xml_attribute found = node.attribute(attribute);
  if (!found || isWordOf(values, found.value())) return;
  refuse(node,
         std::string(attribute) + " '" + found.value() + "' of " + tag(node) + " is not supported");
}

bool NibElements::flag(pugi::xml_node node, const char* attribute, bool otherwise) {
  if (!node.attribute(attribute)) return otherwise;
  expect(node, attribute, "YES NO");
  return std::string_view(node.attribute(attribute).value()) == "YES";
}

double NibElements::number(pugi::xml_node node, const char* attribute,
                           std::optional<double> otherwise) {
  const std::string_view text = node.attribute(attribute).value();
  if (text.empty() && otherwise) return *otherwise;
  const auto value = foundation::parseNumber(text);
  if (value && std::abs(*value) <= longest) return *value;
  refuse(node, std::string(attribute) + " of " + tag(node) + " is no number of points");
  return 0;
}

}  // namespace quorix::uikit
