#include "qt/TextIdentity.h"

#include <algorithm>
#include <functional>
#include <string>

namespace quorix::qt {
namespace {

void mix(std::size_t& hash, std::size_t value) {
  hash ^= value + 0x9e3779b97f4a7c15ULL + (hash << 6) + (hash >> 2);
}

}  // namespace

std::size_t TextIdentity::operator()(const text::AttributedText* text) const {
  auto hash = static_cast<std::size_t>(text->direction);
  for (const text::Run& run : text->runs) {
    mix(hash, std::hash<std::string>{}(run.text));
    mix(hash, std::hash<double>{}(run.font.points));
  }
  return hash;
}

bool TextIdentity::operator()(const text::AttributedText* one,
                              const text::AttributedText* other) const {
  return one->direction == other->direction &&
         std::ranges::equal(one->runs, other->runs, [](const auto& a, const auto& b) {
           return a.text == b.text && a.font == b.font;
         });
}

}  // namespace quorix::qt
