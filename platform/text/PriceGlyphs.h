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

  /// Whether `run` has digits, and so may be another text in each row.
  static bool areIn(const Run& run) {
    return run.text.find_first_of("0123456789") != std::string::npos;
  }
  static bool mayBePrice(const AttributedText& text) {
    return text.runs.size() == 1 && text.direction == layout::LayoutDirection::leftToRight &&
           areIn(text.runs[0]);
  }

  /// Counts a price. True once, when there were enough of them to learn: that costs as much as
  /// shaping some fifty prices, too much for a page with a row or two.
  bool isTimeToLearn() { return prices_ < pricesToLearn && ++prices_ == pricesToLearn; }

  /// Two texts to learn from. Each has every pair of characters; a pair's neighbors differ.
  static std::array<std::u16string, 2> samples() {
    return {pairs(characters), pairs(std::u16string(characters.rbegin(), characters.rend()))};
  }

  /// Learns from the glyphs of a sample. False if they contradict those before, or are not one for
  /// each character: prices of such a face cannot be set.
  bool learn(std::u16string_view sample, std::span<const Glyph> shaped) {
    if (shaped.size() != sample.size()) return false;
    for (std::size_t i = 0; i < sample.size(); ++i) {
      Known& known = known_[indexOf(sample[i])];
      known.advances[count] = shaped[i].advance;
      if (!agree(known.index, shaped[i].index)) return false;
      if (i + 1 == sample.size()) continue;
      auto& advance = known.advances[indexOf(sample[i + 1])];
      if (!agree(advance, shaped[i + 1].x - shaped[i].x)) return false;
    }
    return true;
  }

  /// Calls `place(index, x)` for each glyph of `price` in order and returns the advance of all.
  /// Absent if it has other characters. `price` is not empty, and both samples were learned.
  template <class Place>
  std::optional<double> set(std::u16string_view price, Place place) const {
    double advance = 0;
    for (std::size_t i = 0, at = indexOf(price[0]); i < price.size(); ++i) {
      const std::size_t next = i + 1 < price.size() ? indexOf(price[i + 1]) : count;
      if (at == none || next == none) return std::nullopt;
      place(*known_[at].index, advance);
      advance += *known_[at].advances[next];
      at = next;
    }
    return advance;
  }

 private:
  static constexpr int pricesToLearn = 16;
  static constexpr std::u16string_view characters = u"0123456789.,\u00A0€$£";
  static constexpr std::size_t count = characters.size();
  static constexpr std::size_t none = std::u16string_view::npos;

  struct Known {
    std::optional<std::uint32_t> index;
    /// By the index of the next character; the last one is for the end of a line.
    std::array<std::optional<double>, count + 1> advances;
  };

  static std::size_t indexOf(char16_t character) {
    const bool isDigit = character >= u'0' && character <= u'9';
    return isDigit ? character - std::size_t{u'0'} : characters.find(character, 10);
  }

  /// Each of `order` before and after each of them.
  static std::u16string pairs(std::u16string_view order) {
    std::u16string all;
    for (std::size_t one = 0; one < order.size(); ++one) {
      all += order[one];
      for (const char16_t other : order.substr(one + 1)) all += {order[one], other};
    }
    return all + order[0];
  }

  /// Keeps the first `value`; whether this one is the same.
  template <class Value>
  static bool agree(std::optional<Value>& known, Value value) {
    if (!known) known = value;
    return known == value;
  }

  int prices_ = 0;
  std::array<Known, count> known_;
};

/// The faces that prices were set in lately, with the glyphs of those that were learned. `Shaped`
/// is what an engine makes of a text.
template <class Shaped>
class PriceFaces {
 public:
  struct Face {
    std::string name;
    swiftui::FontWeight weight;
    PriceGlyphs glyphs{};
    std::optional<Shaped> sample{};  ///< absent: not learned
  };

  /// The face of `price`. Null if that is no price, or if the face was not learned. `shape(sample,
  /// name, weight, glyphs)` shapes a text to learn from and appends its glyphs; absent if the face
  /// cannot be learned.
  template <class Shape>
  const Face* find(const AttributedText& price, Shape shape) {
    if (!PriceGlyphs::mayBePrice(price)) return nullptr;
    Face& face = of(price.runs[0].font);
    if (face.glyphs.isTimeToLearn()) learn(face, shape);
    return face.sample ? &face : nullptr;
  }

  void clear() { faces_.clear(); }

 private:
  static constexpr std::size_t mostFaces = 8;

  Face& of(const ResolvedFont& font) {
    const auto known = std::ranges::find_if(faces_, [&](const Face& face) {
      return face.name == font.name && face.weight == font.weight;
    });
    if (known != faces_.end()) return *known;
    if (faces_.size() == mostFaces) faces_.erase(faces_.begin());
    faces_.push_back({font.name, font.weight});
    return faces_.back();
  }

  template <class Shape>
  static void learn(Face& face, Shape shape) {
    for (const std::u16string& sample : PriceGlyphs::samples()) {
      std::vector<PriceGlyphs::Glyph> glyphs;
      face.sample = shape(sample, face.name, face.weight, glyphs);
      if (!face.sample) return;
      if (!face.glyphs.learn(sample, glyphs)) return face.sample.reset();
    }
  }

  std::vector<Face> faces_;
};

}  // namespace quorix::text
