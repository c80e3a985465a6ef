#include "SvgPainter.h"

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <utility>
#include <variant>

#include "platform/graphics/AssetCatalog.h"

namespace quorix::examples {
namespace {

/// A plain decimal number, independent of the process's locale.
std::string number(double value) {
  const auto thousandths = static_cast<long long>(std::llround(value * 1000));
  std::string digits = std::to_string(std::abs(thousandths));
  digits.insert(0, digits.size() < 4 ? 4 - digits.size() : 0, '0');
  digits.insert(digits.size() - 3, ".");
  return (thousandths < 0 ? "-" : "") + digits;
}

std::string attribute(const char* name, const std::string& value) {
  return std::string(" ") + name + "=\"" + value + '"';
}

std::string attribute(const char* name, double value) { return attribute(name, number(value)); }

std::string fill(graphics::RGBA color, const char* name = "fill") {
  char hex[8];
  std::snprintf(hex, sizeof hex, "#%02x%02x%02x", color.red, color.green, color.blue);
  std::string said = attribute(name, std::string(hex));
  if (color.alpha < 255) said += attribute("opacity", color.alpha / 255.0);
  return said;
}

std::string base64(std::string_view bytes) {
  constexpr std::string_view digits =
      "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789+/";
  std::string text;
  for (std::size_t at = 0; at < bytes.size(); at += 3) {
    const auto byte = [&](std::size_t i) {
      return at + i < bytes.size() ? static_cast<unsigned char>(bytes[at + i]) : 0U;
    };
    const unsigned three = byte(0) << 16U | byte(1) << 8U | byte(2);
    for (const unsigned shift : {18U, 12U, 6U, 0U}) text += digits[three >> shift & 63U];
  }
  const std::size_t missing = (3 - bytes.size() % 3) % 3;
  return text.replace(text.size() - missing, missing, missing, '=');
}

std::string place(const layout::Rect& frame) {
  return attribute("x", frame.left()) + attribute("y", frame.top()) +
         attribute("width", frame.size.width) + attribute("height", frame.size.height);
}

std::string escaped(const std::string& text) {
  std::string safe;
  for (const char c : text) {
    if (c == '&')
      safe += "&amp;";
    else if (c == '<')
      safe += "&lt;";
    else
      safe += c;
  }
  return safe;
}

}  // namespace

std::string SvgPainter::paint(const render::Scene& scene, graphics::RGBA ground) {
  appearance_ = scene.appearance;
  svg_ = "<svg xmlns=\"http://www.w3.org/2000/svg\" role=\"img\"" +
         attribute("width", scene.size.width) + attribute("height", scene.size.height) +
         attribute("viewBox", "0 0 " + number(scene.size.width) + ' ' + number(scene.size.height)) +
         ">\n<title>";
  for (const auto& element : scene.accessibility) svg_ += escaped(element.label) + '\n';
  svg_ += "</title>\n";
  draw(render::FillItem{{{}, scene.size}, ground});
  for (const render::Item& item : scene.items) {
    std::visit([this](const auto& what) { draw(what); }, item);
  }
  return std::move(svg_) + std::exchange(unclip_, {}) + "</svg>\n";
}

void SvgPainter::draw(const render::TextItem& item) {
  const auto block = engine_.lay(item.text, item.frame.size.width);
  const bool fromRight = item.text.direction == layout::LayoutDirection::rightToLeft;
  double baseline = item.frame.top() + block.ascent;
  for (const Paragraph::Line& line : block.lines) {
    drawLine(line, item.text, fromRight ? item.frame.right() - line.width : item.frame.left(),
             baseline);
    baseline += block.lineHeight;
  }
}

void SvgPainter::drawLine(const Paragraph::Line& line, const text::AttributedText& text,
                          double left, double baseline) {
  for (const Paragraph::Piece& piece : line.pieces) {
    const text::Run& run = text.runs[piece.run];
    const double points = run.font.points;
    const double unit = points * piece.face->unit();
    svg_ += "<g" + fill(run.color) + ">\n";
    for (const Paragraph::Glyph& glyph : piece.glyphs) {
      const std::string outline = piece.face->outline(glyph.id);
      if (outline.empty()) continue;
      svg_ += "<path transform=\"translate(" + number(left + glyph.x) + ' ' +
              number(baseline + glyph.y) + ") scale(" + std::to_string(unit) + " -" +
              std::to_string(unit) + ")\"" + attribute("d", outline) + "/>\n";
    }
    svg_ += "</g>\n";
    const auto decorate = [&](Face::Stroke stroke, double times) {
      const double thickness = stroke.thickness * points * times;
      const double top = baseline + stroke.offset * points - thickness / 2;
      draw(render::FillItem{{{left + piece.left, top}, {piece.right - piece.left, thickness}},
                            run.color});
    };
    if (run.underline) decorate(piece.face->underline(), run.thickUnderline ? 2 : 1);
    if (run.strikethrough) decorate(piece.face->strikethrough(), 1);
  }
}

/// Uses the shape of a template image, filled with the tint.
void SvgPainter::draw(const render::ImageItem& item) {
  const auto image = graphics::imageSet(item.bundle, item.name);
  if (!image) return;
  std::string filter;
  if (image->isTemplate) {
    const std::string id = "tint" + std::to_string(svg_.size());
    filter = attribute("filter", "url(#" + id + ")");
    svg_ += "<filter" + attribute("id", id) + "><feFlood" + fill(item.tint, "flood-color") +
            "/><feComposite operator=\"in\" in2=\"SourceAlpha\"/></filter>\n";
  }
  svg_ += "<image" + place(item.frame) + filter + attribute("preserveAspectRatio", "none") +
          attribute("href", "data:image/svg+xml;base64," + base64(image->svg(appearance_).text())) +
          "/>\n";
}

void SvgPainter::draw(const render::FillItem& item) {
  const layout::Rect& frame = item.frame;
  if (item.topCornerRadius <= 0 && item.bottomCornerRadius <= 0) {
    svg_ += "<rect" + place(frame) + fill(item.color) + "/>\n";
    return;
  }
  const double r = std::min({item.topCornerRadius, frame.size.width / 2, frame.size.height});
  const double b = std::min({item.bottomCornerRadius, frame.size.width / 2, frame.size.height - r});
  const auto corner = [](double radius, double right, double down) {
    return 'a' + number(radius) + ' ' + number(radius) + " 0 0 1 " + number(right) + ' ' +
           number(down);
  };
  svg_ += "<path" +
          attribute("d", 'M' + number(frame.left()) + ' ' + number(frame.top() + r) +
                             corner(r, r, -r) + 'H' + number(frame.right() - r) + corner(r, r, r) +
                             'V' + number(frame.bottom() - b) + corner(b, -b, b) + 'H' +
                             number(frame.left() + b) + corner(b, -b, -b) + 'Z') +
          fill(item.color) + "/>\n";
}

void SvgPainter::draw(const render::ClipItem& item) {
  const std::string id = "clip" + std::to_string(svg_.size());
  svg_ += "<clipPath" + attribute("id", id) + "><rect" + place(item.frame) + "/></clipPath><g" +
          attribute("clip-path", "url(#" + id + ")") + ">\n";
  unclip_ += "</g>";
}

void SvgPainter::draw(const render::StrokeItem& item) {
  const double half = item.width / 2;
  const layout::Rect middle{
      {item.frame.left() + half, item.frame.top() + half},
      {item.frame.size.width - item.width, item.frame.size.height - item.width}};
  const double radius = std::max(0.0, item.cornerRadius - half);
  svg_ += "<rect" + place(middle) + (radius > 0 ? attribute("rx", radius) : std::string()) +
          " fill=\"none\"" + fill(item.color, "stroke") + attribute("stroke-width", item.width) +
          "/>\n";
}

/// A file cannot embed a page, so this draws its background.
void SvgPainter::draw(const render::EmbedItem& item) {
  draw(render::FillItem{item.frame, item.background, item.topCornerRadius});
}

}  // namespace quorix::examples
