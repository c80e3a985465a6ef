#include "platform/foundation/JSON.h"

#include <simdjson.h>

#include <string>

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

  // These throw `simdjson::simdjson_error`.
  void read(std::string_view bytes);
  void add(simdjson::ondemand::value value, std::string_view key, int depth);
  static void readScalar(simdjson::ondemand::value& value, JSONValue::Node& node);
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

void JSONDocument::State::readScalar(simdjson::ondemand::value& value, JSONValue::Node& node) {
  switch (value.type()) {
    case simdjson::ondemand::json_type::string:
      node.kind = Kind::string;
      node.text = value.get_string();
      break;
    case simdjson::ondemand::json_type::number:
      node.kind = Kind::number;
      node.text = trimmed(value.raw_json_token());
      if (const auto failure = value.get_double().get(node.number)) {
        // simdjson refuses exponents of very many digits.
        const auto number = numberWithExponent(node.text);
        if (failure != simdjson::NUMBER_ERROR || !number) throw simdjson::simdjson_error(failure);
        node.number = *number;
      }
      break;
    case simdjson::ondemand::json_type::boolean:
      node.kind = Kind::boolean;
      node.number = value.get_bool() ? 1 : 0;
      break;
    default:
      if (!value.is_null()) throw simdjson::simdjson_error(simdjson::N_ATOM_ERROR);
  }
}

void JSONDocument::State::add(simdjson::ondemand::value value, std::string_view key, int depth) {
  const std::size_t index = nodes.size();
  nodes.emplace_back().key = key;
  const simdjson::ondemand::json_type type = value.type();
  const bool isArray = type == simdjson::ondemand::json_type::array;
  if (!isArray && type != simdjson::ondemand::json_type::object) {
    return readScalar(value, nodes.back());
  }
  if (depth == maximumDepth) throw simdjson::simdjson_error(simdjson::DEPTH_ERROR);
  nodes.back().kind = isArray ? Kind::array : Kind::object;
  if (isArray) {
    simdjson::ondemand::array array = value.get_array();
    for (auto element : array) add(element.value(), {}, depth + 1);
  } else {
    simdjson::ondemand::object object = value.get_object();
    for (auto member : object) {
      const std::string_view name = member.unescaped_key();
      add(member.value(), name, depth + 1);
    }
  }
  nodes[index].span = nodes.size() - index;
}

void JSONDocument::State::read(std::string_view bytes) {
  constexpr std::string_view byteOrderMark = "\xEF\xBB\xBF";
  if (bytes.starts_with(byteOrderMark)) bytes.remove_prefix(byteOrderMark.size());
  // Newer versions of simdjson skip a byte order mark and would accept a second one.
  if (bytes.starts_with(byteOrderMark)) throw simdjson::simdjson_error(simdjson::TAPE_ERROR);
  nodes.clear();
  buffer.assign(bytes);
  buffer.append(simdjson::SIMDJSON_PADDING, '\0');
  const simdjson::padded_string_view padded(buffer.data(), bytes.size(), buffer.size());
  simdjson::ondemand::document document = parser.iterate(padded);
  const simdjson::ondemand::value root = document.get_value();
  try {
    add(root, {}, 0);
  } catch (const simdjson::simdjson_error&) {
    // A document that is not closed is malformed, even if it is also too deep: older versions of
    // simdjson read on.
    const char closing = nodes.front().kind == Kind::array ? ']' : '}';
    if (trimmed(bytes).back() == closing) throw;
    throw simdjson::simdjson_error(simdjson::INCOMPLETE_ARRAY_OR_OBJECT);
  }
  if (document.current_location().error() != simdjson::OUT_OF_BOUNDS) {
    throw simdjson::simdjson_error(simdjson::TRAILING_CONTENT);
  }
}

JSONDocument::JSONDocument() : state_(std::make_unique<State>()) {}
JSONDocument::JSONDocument(JSONDocument&&) noexcept = default;
JSONDocument& JSONDocument::operator=(JSONDocument&&) noexcept = default;
JSONDocument::~JSONDocument() = default;

Result<JSONValue> JSONDocument::parse(std::string_view bytes) {
  try {
    state_->read(bytes);
    return JSONValue(state_->nodes.data());
  } catch (const simdjson::simdjson_error& failure) {
    return describe(failure.error());
  }
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
