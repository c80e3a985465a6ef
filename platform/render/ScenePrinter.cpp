#include "platform/render/ScenePrinter.h"

#include <concepts>
#include <string_view>

#include "platform/render/Wording.h"

namespace quorix::render {
namespace {

using layout::Rect;

std::string_view nameOf(Role role) {
  constexpr std::string_view names[] = {"text", "button", "heading", "image", "link"};
  return names[static_cast<int>(role)];
}

/// Writes each part as a line of words.
class WordWriter {
 public:
  void begin(std::string_view kind, const Rect& frame) {
    if (!text_.empty()) text_ += '\n';
    text_ += kind;
    for (const double length : {frame.left(), frame.top(), frame.size.width, frame.size.height}) {
      text_ += ' ' + points(length);
    }
  }
  void main(std::string_view, std::string_view text) { text_ += ' ' + inQuotes(text); }
  void text(std::string_view name, std::string_view text) {
    text_ += ' ' + std::string(name) + ' ' + inQuotes(text);
  }
  void value(std::string_view, const std::string& word) {
    if (!word.empty()) text_ += ' ' + word;
  }
  void value(std::string_view, double value) { text_ += ' ' + points(value); }
  void flag(std::string_view name, bool on) {
    if (on) text_ += ' ' + std::string(name);
  }
  void beginRuns() {}
  void beginRun(std::string_view words) { text("run", words); }
  void endRuns() {}
  std::string end() { return text_.empty() ? "" : text_ + '\n'; }

 private:
  std::string text_;
};

/// Writes each part as a JSON object.
class ObjectWriter {
 public:
  void begin(std::string_view kind, const Rect& frame) {
    text_ += text_.empty() ? "{" : "},\n {";
    text_ += "\"kind\": " + inQuotes(kind) + ", \"frame\": {\"x\": " + points(frame.left()) +
             ", \"y\": " + points(frame.top()) + ", \"width\": " + points(frame.size.width) +
             ", \"height\": " + points(frame.size.height) + "}";
  }
  void main(std::string_view name, std::string_view text) { member(name, inQuotes(text)); }
  void text(std::string_view name, std::string_view text) { member(name, inQuotes(text)); }
  void value(std::string_view name, const std::string& word) { member(name, inQuotes(word)); }
  void value(std::string_view name, double value) { member(name, points(value)); }
  void flag(std::string_view name, bool on) { member(name, on ? "true" : "false"); }
  void beginRuns() { text_ += ", \"runs\": ["; }
  void beginRun(std::string_view words) {
    text_ += text_.back() == '[' ? "{" : "}, {";
    text_ += "\"text\": " + inQuotes(words);
  }
  void endRuns() { text_ += text_.back() == '[' ? "]" : "}]"; }
  std::string end() { return text_.empty() ? "[]" : "[" + text_ + "}]"; }

 private:
  void member(std::string_view name, std::string_view value) {
    text_ += ", " + inQuotes(name) + ": ";
    text_ += value;
  }
  std::string text_;
};

template <class Writer>
void writeLook(const text::Run& run, Writer& to) {
  to.value("font", run.font.name);
  to.value("points", run.font.points);
  if (run.font.weight != graphics::FontWeight::regular) {
    to.value("weight", std::string(nameOf(run.font.weight)));
  }
  to.value("color", hex(run.color));
  to.flag("underline", run.underline);
  if (run.thickUnderline) to.flag("thickUnderline", true);
  to.flag("strikethrough", run.strikethrough);
}

template <class Writer>
void write(const TextItem& item, Writer& to) {
  std::string words;
  for (const text::Run& run : item.text.runs) words += run.text;
  to.begin("text", item.frame);
  to.main("text", words);
  if (item.text.runs.size() == 1) return writeLook(item.text.runs.front(), to);
  to.beginRuns();
  for (const text::Run& run : item.text.runs) {
    to.beginRun(run.text);
    writeLook(run, to);
  }
  to.endRuns();
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
  if (item.bottomCornerRadius > 0) to.value("bottomCornerRadius", item.bottomCornerRadius);
}

template <class Writer>
void write(const StrokeItem& item, Writer& to) {
  to.begin("stroke", item.frame);
  to.value("color", hex(item.color));
  to.value("width", item.width);
  if (item.cornerRadius > 0) to.value("cornerRadius", item.cornerRadius);
}

template <class Writer>
void write(const EmbedItem& item, Writer& to) {
  to.begin("embed", item.frame);
  to.value("background", hex(item.background));
  if (item.topCornerRadius > 0) to.value("topCornerRadius", item.topCornerRadius);
}

template <class Writer>
void write(const ClipItem& item, Writer& to) {
  to.begin("clip", item.frame);
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

// Only for an `Item` itself: a kind without a function of its own would convert to one.
template <class Writer>
void write(const std::same_as<Item> auto& item, Writer& to) {
  std::visit([&](const auto& shown) { write(shown, to); }, item);
}

template <class Writer, class Part>
std::string written(const std::vector<Part>& parts) {
  Writer to;
  for (const Part& part : parts) write(part, to);
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
  return "{\"size\": {\"width\": " + points(scene.size.width) +
         ", \"height\": " + points(scene.size.height) + "},\n\"items\":\n" +
         written<ObjectWriter>(scene.items) + ",\n\"hitAreas\":\n" +
         written<ObjectWriter>(scene.hitAreas) + "}\n";
}

std::string accessibilityToJSON(const Scene& scene) {
  return written<ObjectWriter>(scene.accessibility) + "\n";
}

}  // namespace quorix::render
