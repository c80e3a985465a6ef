#pragma once

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "platform/text/AttributedText.h"
#include "platform/text/ShapedText.h"

namespace quorix::text {

/// Sets prices in one face on a line without shaping each of them. In most faces a digit or a sign
/// has one glyph, whose advance depends only on the next character. `learn` finds out whether that
/// is so.
class PriceGlyphs {
 public:
  /// A glyph of a shaped line.
  struct Glyph {
    std::uint32_t index = 0;
    double x = 0;        ///< of its origin on the line
    double advance = 0;  ///< at the end of a line
  };

  /// Whether `text` has digits, and so may be another one in each row.
  static bool mayBePrice(const AttributedText& text) {
    return text.runs.size() == 1 && text.direction == layout::LayoutDirection::leftToRight &&
           text.runs[0].text.find_first_of("0123456789") != std::string::npos;
  }

  /// Two texts to learn from. Each contains every pair of characters; the characters around a pair
  /// differ between the two.
  static std::array<std::string, 2> samples() {
    auto backwards = characters;
    std::ranges::reverse(backwards);
    return {pairs(characters), pairs(backwards)};
  }

  /// Learns from the glyphs of a sample. False if they contradict those before, or are not one for
  /// each character: prices of such a face cannot be set.
  bool learn(std::string_view sample, std::span<const Glyph> shaped) {
    std::size_t at = take(sample);
    for (std::size_t i = 0; i < shaped.size() && at < count; ++i) {
      Known& known = known_[at];
      known.advances[count] = shaped[i].advance;
      if (!agree(known.index, shaped[i].index)) return false;
      at = take(sample);
      if (at == count) return i + 1 == shaped.size();
      if (i + 1 == shaped.size()) return false;
      if (!agree(known.advances[at], shaped[i + 1].x - shaped[i].x)) return false;
    }
    return false;
  }

  /// Appends the glyphs of `price` in order and returns the advance of all. Absent if it has other
  /// characters. `price` is not empty, and both samples were learned.
  std::optional<double> set(std::string_view price, std::vector<Glyph>& glyphs) const {
    double advance = 0;
    for (std::size_t at = take(price), next = 0; at != count; at = next) {
      next = take(price);
      if (at == none || next == none) return std::nullopt;
      glyphs.push_back({*known_[at].index, advance});
      advance += *known_[at].advances[next];
    }
    return advance;
  }

 private:
  static constexpr std::array<std::string_view, 16> characters = {
      "0", "1", "2", "3", "4", "5", "6", "7", "8", "9", ".", ",", "\u00A0", "€", "$", "£"};
  static constexpr std::size_t count = characters.size();
  static constexpr std::size_t none = count + 1;

  struct Known {
    std::optional<std::uint32_t> index;
    /// By the index of the next character; the last one is for the end of a line.
    std::array<std::optional<double>, count + 1> advances;
  };

  /// Removes the first character of `text`. Its index; `count` at the end, `none` for others.
  static std::size_t take(std::string_view& text) {
    if (text.empty()) return count;
    const auto found = std::ranges::find_if(
        characters, [&](std::string_view character) { return text.starts_with(character); });
    if (found == characters.end()) return none;
    text.remove_prefix(found->size());
    return static_cast<std::size_t>(found - characters.begin());
  }

  /// A text in which every two of `order` are neighbors, in both orders, and each its own.
  static std::string pairs(std::span<const std::string_view> order) {
    std::string all;
    for (std::size_t one = 0; one < order.size(); ++one) {
      all += order[one];
      for (const std::string_view other : order.subspan(one + 1)) (all += order[one]) += other;
    }
    return all += order[0];
  }

  /// Stores the first `value`. False if it differs from the stored one.
  template <class Value>
  static bool agree(std::optional<Value>& known, Value value) {
    if (!known) known = value;
    return known == value;
  }

  std::array<Known, count> known_;
};

/// The faces that prices were set in lately, with the glyphs of those that were learned.
template <class Glyphs>
class PriceFaces {
 public:
  /// `em` is the font size, in points, at which an engine's unit is a point.
  explicit PriceFaces(double em) : em_(em) {}

  /// Sets `price` (a text for which `mayBePrice` is true) on one line, as the engine would shape
  /// it; `unit` is the points for each of the engine's units. Absent for a text with other
  /// characters, and for a face that was not learned. `shape(sample, glyphs)` shapes a sample and
  /// appends its glyphs; `make(like, glyphs)` returns `glyphs` in the engine's own type, with the
  /// font of `like`.
  template <class Shape, class Make>
  std::optional<ShapedText<Glyphs>> set(const AttributedText& price, double unit, Shape shape,
                                        Make make) {
    const Run& run = price.runs[0];
    Face& face = find(run.font);
    if (++face.prices == pricesToLearn) learn(face, shape);
    if (!face.sample) return std::nullopt;
    std::vector<PriceGlyphs::Glyph> glyphs;
    glyphs.reserve(run.text.size());
    const auto advance = face.glyphs.set(run.text, glyphs);
    if (!advance) return std::nullopt;
    const auto& like = face.sample->lines[0];
    ShapedText<Glyphs> shaped;
    shaped.unit = unit;
    const double width = *advance * unit;
    shaped.metrics.size = {measuredWidth(width, width, layout::infinity),
                           face.sample->metrics.size.height * unit};
    shaped.lines.push_back({like.baseline * unit, width, {}, {}});
    shaped.lines[0].add(make(like.pieces[0].glyphs, glyphs), 0, 0, width);
    return shaped;
  }

  void clear() { faces_.clear(); }

 private:
  static constexpr std::size_t mostFaces = 8;
  /// Learning costs as much as shaping some fifty prices, too much for a page with a row or two.
  static constexpr std::size_t pricesToLearn = 16;

  struct Face {
    std::string name;
    graphics::FontWeight weight;
    std::size_t prices = 0;
    PriceGlyphs glyphs{};
    std::optional<ShapedText<Glyphs>> sample{};  ///< absent: not learned
  };

  Face& find(const ResolvedFont& font) {
    const auto known = std::ranges::find_if(faces_, [&](const Face& face) {
      return face.name == font.name && face.weight == font.weight;
    });
    if (known != faces_.end()) return *known;
    if (faces_.size() == mostFaces) faces_.erase(faces_.begin());
    faces_.push_back({font.name, font.weight});
    return faces_.back();
  }

  template <class Shape>
  void learn(Face& face, Shape shape) const {
    for (const std::string& sample : PriceGlyphs::samples()) {
      std::vector<PriceGlyphs::Glyph> glyphs;
      face.sample = shape({{{sample, {face.name, em_, face.weight}, {}}}}, glyphs);
      if (!face.glyphs.learn(sample, glyphs)) return face.sample.reset();
    }
  }

  const double em_;
  std::vector<Face> faces_;
};

}  // namespace quorix::text
