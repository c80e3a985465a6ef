#include "platform/render/KnownGround.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <utility>
#include <vector>

namespace quorix::render {
namespace {

/// An image of 8 by 4 pixels.
struct Image {
  static constexpr std::uint32_t light = 0xFF0000FA, dot = 0xFF112233, blended = 0xFF445566;
  static constexpr layout::Rect all{{}, {8, 4}};

  std::vector<std::uint32_t> memory = std::vector<std::uint32_t>(32);
  Pixels pixels() { return {memory.data(), 8, 8, 4}; }

  /// Its third row.
  std::string shown() const {
    std::string row;
    for (std::size_t at = 16; at < 24; ++at) {
      row += memory[at] == light     ? '-'
             : memory[at] == dot     ? 'x'
             : memory[at] == blended ? 'b'
                                     : '.';
    }
    return row;
  }
};

/// A text of 3 by 2 pixels, with two dots of ink right of it.
TEST(KnownGround, TakesATextFromItsPictureWhereThatLooksTheSame) {
  enum Before : std::uint8_t { light, glass, picture, ink, clip };
  const layout::Rect frame{{1, 1}, {3, 2}}, atInk{{5, 1}, {1, 1}}, before{{1, 1}, {2, 1}};
  const struct {
    std::vector<std::pair<Before, layout::Rect>> under;
    std::string shown;
    double x = 1;
  } rows[] = {
      {{}, "....xx.."},
      {{{light, Image::all}}, "----xx--"},
      {{{glass, Image::all}}, "........"},
      {{{light, frame}}, ".---...."},
      {{{picture, {{2, 2}, {9, 1}}}}, "........"},
      {{{picture, {{1, 3}, {9, 1}}}}, "....xx.."},
      {{{ink, atInk}}, "....bb.."},
      {{{ink, before}}, "....xx.."},
      {{{light, Image::all}, {ink, atInk}}, "--------"},
      {{{clip, {{}, {5, 4}}}}, "....x..."},
      {{}, "x.......", -4},
      {{}, "....xx..", 1 + 1e-9},
      {{}, "........", 1.25},
  };
  for (const auto& row : rows) {
    TextPictures<InkPicture> pictures;
    Image image;
    const auto paint = [&](graphics::RGBA ground) {
      Image bare;
      KnownGround(bare.pixels()).fill(Image::all, ground);
      bare.memory[8 + 5] = bare.memory[8 + 6] = Image::dot;  // the text is at 2, 0
      return InkPicture::cropped(bare.pixels(), {2, 0}, ground);
    };
    const auto blend = [&](const InkPicture& ink, layout::Point at) {
      const auto first = static_cast<std::size_t>(8 * at.y + at.x);
      std::fill_n(image.memory.begin() + first, ink.pixels.size(), Image::blended);
    };
    for (int time = 0; time < 2; ++time) {  // the second time makes the picture
      image = {};
      KnownGround ground(image.pixels());
      for (const auto& [kind, part] : row.under) {
        const graphics::RGBA color{0, 0, 250, std::uint8_t(kind == glass ? 128 : 255)};
        if (kind == light || kind == glass) ground.filled(part, color), ground.fill(part, color);
        if (kind == picture) ground.painted(part);
        if (kind == ink) ground.inkedAround(part);
        if (kind == clip) ground.clip(part);
      }
      ground.paint({{{row.x, 1}, frame.size}, {{text::Run{"fee", {"Face", 14}, {}}}}}, 1, pictures,
                   paint, blend);
    }
    EXPECT_EQ(image.shown(), row.shown) << &row - rows;
  }
}

}  // namespace
}  // namespace quorix::render
