#pragma once

#include <algorithm>
#include <cmath>
#include <string>
#include <vector>

#include "platform/text/TextEngine.h"

namespace quorix::testing {

/// A text engine whose results can be reckoned by hand: each character is half its size wide, each
/// line 1.25 times its size high, by the size of the first run. Records what it was asked.
class FixedWidthText final : public text::TextEngine {
 public:
  struct Call {
    std::string words;
    double width;
    auto operator<=>(const Call&) const = default;
  };
  std::vector<Call> calls;

  text::TextMetrics measure(const text::AttributedText& text, double width) override {
    const text::Run& run = text.runs.front();
    std::string words;
    for (const text::Run& part : text.runs) words += part.text;
    calls.push_back({words, width});
    const double advance = run.font.points / 2;
    const double lineHeight = run.font.points * 1.25;
    Lines lines{std::max(1.0, std::floor(width / advance + 1e-9))};
    for (std::size_t start = 0; start <= words.size();) {
      const std::size_t end = std::min(words.find(' ', start), words.size());
      lines.add(characters(words.substr(start, end - start)));
      start = end + 1;
    }
    return {{lines.widest * advance, lines.count * lineHeight}};
  }

  double leastWidth(const text::AttributedText& text) override {
    std::string words;
    for (const text::Run& part : text.runs) words += part.text;
    double longest = 0;
    for (std::size_t start = 0; start <= words.size();) {
      const std::size_t end = std::min(words.find(' ', start), words.size());
      longest = std::max(longest, characters(words.substr(start, end - start)));
      start = end + 1;
    }
    return longest * text.runs.front().font.points / 2;
  }

 private:
  struct Lines {
    double capacity;
    double used = 0;
    double widest = 0;
    int count = 1;

    void add(double word) {
      if (used > 0 && used + 1 + word > capacity) next();
      if (used > 0) ++used;
      for (; word > capacity; word -= capacity) {
        widest = capacity;
        next();
      }
      used += word;
      widest = std::max(widest, used);
    }
    void next() { ++count, used = 0; }
  };

  static double characters(const std::string& utf8) {
    return static_cast<double>(
        std::count_if(utf8.begin(), utf8.end(), [](char c) { return (c & 0xC0) != 0x80; }));
  }
};

}  // namespace quorix::testing
