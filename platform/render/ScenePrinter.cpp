#include "platform/render/ScenePrinter.h"

#include <array>
#include <charconv>
#include <cmath>
#include <cstdio>
#include <string_view>

namespace quorix::render {
namespace {

using layout::Rect;

std::string number(double value) {
  const double shown = std::round(value * 1000) / 1000 + 0.0;  // no "-0"
  std::array<char, 32> digits;
  const auto end = std::to_chars(digits.data(), digits.data() + digits.size(), shown).ptr;
  return {digits.data(), end};
}

/// A JSON text; as good for reading.
std::string quoted(std::string_view text) {
  std::string result = "\"";
  for (const char c : text) {
    if (c == '"' || c == '\\') {
      result += '\\';
      result += c;
    } else if (c == '\n') {
      result += "\\n";
    } else if (static_cast<unsigned char>(c) < 0x20) {
      std::array<char, 7> code;
      std::snprintf(code.data(), code.size(), "\\u%04x", static_cast<unsigned>(c));
      result += code.data();
    } else {
      result += c;
    }
  }
  return result + '"';
}

std::string hex(graphics::RGBA color) {
  std::array<char, 10> text;
  std::snprintf(text.data(), text.size(), "#%02X%02X%02X%02X", color.red, color.green, color.blue,
                color.alpha);
  return text.data();
}

std::string_view nameOf(Role role) {
  constexpr std::string_view names[] = {"text", "button", "heading", "image", "link"};
  return names[static_cast<int>(role)];
}

/// Writes one thing after the other as lines of words.
class WordWriter {
 public:
  void begin(std::string_view kind, const Rect& frame) {
    if (!text_.empty()) text_ += '\n';
    text_ += kind;
    for (const double length : {frame.left(), frame.top(), frame.size.width, frame.size.height}) {
      text_ += ' ' + number(length);
    }
  }
  void main(std::string_view, std::string_view text) { text_ += ' ' + quoted(text); }
  void text(std::string_view name, std::string_view text) {
    text_ += ' ' + std::string(name) + ' ' + quoted(text);
  }
  void value(std::string_view, const std::string& word) {
    if (!word.empty()) text_ += ' ' + word;
  }
  void value(std::string_view, double value) { text_ += ' ' + number(value); }
  void flag(std::string_view name, bool on) {
    if (on) text_ += ' ' + std::string(name);
  }
  std::string end() { return text_.empty() ? "" : text_ + '\n'; }

 private:
  std::string text_;
};

/// Writes one thing after the other as JSON objects.
class ObjectWriter {
 public:
  void begin(std::string_view kind, const Rect& frame) {
    text_ += text_.empty() ? "{" : "},\n {";
    text_ += "\"kind\": " + quoted(kind) + ", \"frame\": {\"x\": " + number(frame.left()) +
             ", \"y\": " + number(frame.top()) + ", \"width\": " + number(frame.size.width) +
             ", \"height\": " + number(frame.size.height) + "}";
  }
  void main(std::string_view name, std::string_view text) { member(name, quoted(text)); }
  void text(std::string_view name, std::string_view text) { member(name, quoted(text)); }
  void value(std::string_view name, const std::string& word) { member(name, quoted(word)); }
  void value(std::string_view name, double value) { member(name, number(value)); }
  void flag(std::string_view name, bool on) { member(name, on ? "true" : "false"); }
  std::string end() { return text_.empty() ? "[]" : "[" + text_ + "}]"; }

 private:
  void member(std::string_view name, std::string_view value) {
    text_ += ", " + quoted(name) + ": ";
    text_ += value;
  }
  std::string text_;
};

template <class Writer>
void write(const TextItem& item, Writer& to) {
  std::string words;
  for (const text::Run& run : item.text.runs) words += run.text;
  to.begin("text", item.frame);
  to.main("text", words);
  if (item.text.runs.empty()) return;
  const text::Run& look = item.text.runs.front();
  to.value("font", look.font.name);
  to.value("points", look.font.points);
  to.value("color", hex(look.color));
  to.flag("underline", look.underline);
  if (look.thickUnderline) to.flag("thickUnderline", true);
  to.flag("strikethrough", look.strikethrough);
}

template <class Writer>
void write(const ImageItem& item, Writer& to) {
  to.begin("image", item.frame);
  to.main("name", item.name);
  to.value("tint", hex(item.tint));
}

template <class Writer>
void write(const FillItem& item, Writer& to) {
  to.begin("fill", item.frame);
  to.value("color", hex(item.color));
  if (item.topCornerRadius > 0) to.value("topCornerRadius", item.topCornerRadius);
}

template <class Writer>
void write(const StrokeItem& item, Writer& to) {
  to.begin("stroke", item.frame);
  to.value("color", hex(item.color));
  to.value("width", item.width);
}

template <class Writer>
void write(const EmbedItem& item, Writer& to) {
  to.begin("embed", item.frame);
  to.value("background", hex(item.background));
}

template <class Writer>
void write(const HitArea& area, Writer& to) {
  to.begin("hit", area.frame);
}

template <class Writer>
void write(const AccessibilityElement& element, Writer& to) {
  to.begin(nameOf(element.role), element.frame);
  to.main("label", element.label);
  if (!element.hint.empty()) to.text("hint", element.hint);
  to.flag("acts", static_cast<bool>(element.action));
}

template <class Writer, class Part>
std::string written(const std::vector<Part>& parts) {
  Writer to;
  for (const Part& part : parts) write(part, to);
  return to.end();
}

template <class Writer>
std::string written(const std::vector<Item>& items) {
  Writer to;
  for (const Item& item : items) {
    std::visit([&](const auto& shown) { write(shown, to); }, item);
  }
  return to.end();
}

}  // namespace

std::string printFrames(const Scene& scene) {
  return written<WordWriter>(scene.items) + written<WordWriter>(scene.hitAreas);
}

std::string printAccessibility(const Scene& scene) {
  return written<WordWriter>(scene.accessibility);
}

std::string framesToJSON(const Scene& scene) {
  return "{\"size\": {\"width\": " + number(scene.size.width) +
         ", \"height\": " + number(scene.size.height) + "},\n\"items\":\n" +
         written<ObjectWriter>(scene.items) + ",\n\"hitAreas\":\n" +
         written<ObjectWriter>(scene.hitAreas) + "}\n";
}

std::string accessibilityToJSON(const Scene& scene) {
  return written<ObjectWriter>(scene.accessibility) + "\n";
}

}  // namespace quorix::render
