#include "platform/foundation/JSON.h"

#include <simdjson.h>

#include <string>
#include <utility>

#include "platform/foundation/Numbers.h"

namespace quorix::foundation {

/// One value. The nodes of a container's children follow it, each with its own descendants.
struct JSONValue::Node {
  std::string_view key;
  std::string_view text;  // a string's text, or a number as it is spelled
  double number = 0;
  std::size_t span = 1;  // nodes of this value and its descendants
  Kind kind = Kind::null;
};

struct JSONDocument::State {
  using Kind = JSONValue::Kind;

  simdjson::ondemand::parser parser;
  std::string buffer;
  std::vector<JSONValue::Node> nodes;

  simdjson::error_code read(std::string_view bytes);
  simdjson::error_code add(simdjson::ondemand::value& value, std::string_view key, int depth);
  simdjson::error_code addArray(simdjson::ondemand::value& value, int depth);
  simdjson::error_code addObject(simdjson::ondemand::value& value, int depth);
  static simdjson::error_code readScalar(simdjson::ondemand::value& value,
                                         simdjson::ondemand::json_type type, JSONValue::Node& node);
};

namespace {

/// Far deeper than any real document, but shallow enough for recursion on a thread with a small
/// stack.
constexpr int maximumDepth = 600;

Error describe(simdjson::error_code failure) {
  using Code = JSONDocument::ErrorCode;
  const Code code = failure == simdjson::DEPTH_ERROR ? Code::tooDeep : Code::malformed;
  return {"JSON", static_cast<std::int64_t>(code),
          failure == simdjson::SCALAR_DOCUMENT_AS_VALUE ? "The text is no object and no array."
                                                        : simdjson::error_message(failure)};
}

/// simdjson's token of a scalar ends where the next token starts. This removes the white space.
std::string_view trimmed(std::string_view token) {
  return token.substr(0, token.find_last_not_of(" \n\r\t") + 1);
}

}  // namespace

simdjson::error_code JSONDocument::State::readScalar(simdjson::ondemand::value& value,
                                                     simdjson::ondemand::json_type type,
                                                     JSONValue::Node& node) {
  switch (type) {
    case simdjson::ondemand::json_type::string:
      node.kind = Kind::string;
      return value.get_string().get(node.text);
    case simdjson::ondemand::json_type::number:
      node.kind = Kind::number;
      node.text = trimmed(value.raw_json_token());
      if (const auto failure = value.get_double().get(node.number)) {
        // simdjson refuses exponents of very many digits.
        const auto number = numberWithExponent(node.text);
        if (failure != simdjson::NUMBER_ERROR || !number) return failure;
        node.number = *number;
      }
      return simdjson::SUCCESS;
    case simdjson::ondemand::json_type::boolean: {
      bool truth = false;
      const auto failure = value.get_bool().get(truth);
      node.kind = Kind::boolean;
      node.number = truth ? 1 : 0;
      return failure;
    }
    default: {
      bool null = false;
      const auto failure = value.is_null().get(null);
      return failure ? failure : null ? simdjson::SUCCESS : simdjson::N_ATOM_ERROR;
    }
  }
}

simdjson::error_code JSONDocument::State::add(simdjson::ondemand::value& value,
                                              std::string_view key, int depth) {
  JSONValue::Node& node = nodes.emplace_back();
  node.key = key;
  simdjson::ondemand::json_type type;
  if (const auto failure = value.type().get(type)) return failure;
  const bool isArray = type == simdjson::ondemand::json_type::array;
  if (!isArray && type != simdjson::ondemand::json_type::object)
    return readScalar(value, type, node);
  if (depth == maximumDepth) return simdjson::DEPTH_ERROR;
  node.kind = isArray ? Kind::array : Kind::object;
  const std::size_t index = nodes.size() - 1;
  const auto failure = isArray ? addArray(value, depth + 1) : addObject(value, depth + 1);
  nodes[index].span = nodes.size() - index;
  return failure;
}

simdjson::error_code JSONDocument::State::addArray(simdjson::ondemand::value& value, int depth) {
  simdjson::ondemand::array array;
  if (const auto failure = value.get_array().get(array)) return failure;
  for (auto element : array) {
    simdjson::ondemand::value item;
    if (const auto failure = element.get(item)) return failure;
    if (const auto failure = add(item, {}, depth)) return failure;
  }
  return simdjson::SUCCESS;
}

simdjson::error_code JSONDocument::State::addObject(simdjson::ondemand::value& value, int depth) {
  simdjson::ondemand::object object;
  if (const auto failure = value.get_object().get(object)) return failure;
  for (auto result : object) {
    simdjson::ondemand::field field;
    std::string_view key;
    if (const auto failure = std::move(result).get(field)) return failure;
    if (const auto failure = field.unescaped_key().get(key)) return failure;
    if (const auto failure = add(field.value(), key, depth)) return failure;
  }
  return simdjson::SUCCESS;
}

simdjson::error_code JSONDocument::State::read(std::string_view bytes) {
  constexpr std::string_view byteOrderMark = "\xEF\xBB\xBF";
  if (bytes.starts_with(byteOrderMark)) bytes.remove_prefix(byteOrderMark.size());
  // Newer versions of simdjson skip a byte order mark and would accept a second one.
  if (bytes.starts_with(byteOrderMark)) return simdjson::TAPE_ERROR;
  nodes.clear();
  buffer.assign(bytes);
  buffer.append(simdjson::SIMDJSON_PADDING, '\0');
  simdjson::ondemand::document document;
  simdjson::ondemand::value root;
  const simdjson::padded_string_view padded(buffer.data(), bytes.size(), buffer.size());
  if (const auto failure = parser.iterate(padded).get(document)) return failure;
  if (const auto failure = document.get_value().get(root)) return failure;
  if (const auto failure = add(root, {}, 0)) {
    // A document that is not closed is malformed, even if it is also too deep: older versions of
    // simdjson read on.
    const char closing = nodes.front().kind == Kind::array ? ']' : '}';
    return trimmed(bytes).back() == closing ? failure : simdjson::INCOMPLETE_ARRAY_OR_OBJECT;
  }
  return document.current_location().error() == simdjson::OUT_OF_BOUNDS
             ? simdjson::SUCCESS
             : simdjson::TRAILING_CONTENT;
}

JSONDocument::JSONDocument() : state_(std::make_unique<State>()) {}
JSONDocument::JSONDocument(JSONDocument&&) noexcept = default;
JSONDocument& JSONDocument::operator=(JSONDocument&&) noexcept = default;
JSONDocument::~JSONDocument() = default;

Result<JSONValue> JSONDocument::parse(std::string_view bytes) {
  if (const auto failure = state_->read(bytes)) return describe(failure);
  return JSONValue(state_->nodes.data());
}

JSONValue::Kind JSONValue::kind() const { return node_->kind; }

std::optional<double> JSONValue::number() const {
  if (kind() != Kind::number && kind() != Kind::boolean) return std::nullopt;
  return node_->number;
}

std::optional<std::int64_t> JSONValue::integer() const {
  if (kind() == Kind::boolean) return static_cast<std::int64_t>(node_->number);
  if (kind() != Kind::number) return std::nullopt;
  return exactInteger(node_->text);
}

std::optional<std::string_view> JSONValue::string() const {
  if (kind() != Kind::string) return std::nullopt;
  return node_->text;
}

template <class Visit>
void JSONValue::forEachChild(Visit visit) const {
  for (const Node* child = node_ + 1; child != node_ + node_->span; child += child->span) {
    visit(*child);
  }
}

std::optional<JSONValue> JSONValue::member(std::string_view key) const {
  if (kind() != Kind::object) return std::nullopt;
  const Node* found = nullptr;
  forEachChild([&](const Node& child) {
    if (child.key == key) found = &child;
  });
  if (!found) return std::nullopt;
  return JSONValue(found);
}

std::map<std::string_view, JSONValue> JSONValue::members() const {
  std::map<std::string_view, JSONValue> members;
  if (kind() != Kind::object) return members;
  forEachChild([&](const Node& child) { members.insert_or_assign(child.key, JSONValue(&child)); });
  return members;
}

std::vector<JSONValue> JSONValue::elements() const {
  std::vector<JSONValue> elements;
  if (kind() != Kind::array) return elements;
  forEachChild([&](const Node& child) { elements.push_back(JSONValue(&child)); });
  return elements;
}

}  // namespace quorix::foundation
