#include "qt/text/QtTextEngine.h"

#include <algorithm>
#include <utility>

#include "qt/ApplicationLifetime.h"

namespace quorix::qt {
namespace {

// Enough for all rows on a tall screen; some 2 KB each.
constexpr std::size_t maximumEntries = 256;
// Layout asks at the least width, at the offered one and without one.
constexpr std::size_t maximumBreakings = 4;

}  // namespace

QtTextEngine& QtTextEngine::shared() { return applicationLifetime<QtTextEngine>(); }

text::TextMetrics QtTextEngine::measure(const text::AttributedText& text, double width) {
  // Nothing is painted at no width: layout only asks how small the text can get.
  return find(text, width, width > 0).metrics;
}

double QtTextEngine::leastWidth(const text::AttributedText& text) {
  if (fonts_.refresh()) clear();
  Entry& known = entry(text);
  if (!known.leastWidth) {
    takeUp(known);
    known.leastWidth = paragraph_.leastWidth();
  }
  return *known.leastWidth;
}

const ShapedText& QtTextEngine::shape(const text::AttributedText& text, double width) {
  return find(text, width, true);
}

TextPictures& QtTextEngine::pictures() {
  if (fonts_.refresh()) clear();
  return pictures_;
}

bool QtTextEngine::Breaking::serves(double wanted) const {
  // Lines are filled greedily, so they stay the same while the widest still fits.
  return wanted == width || (wanted < width && wanted >= text.metrics.size.width);
}

const ShapedText& QtTextEngine::find(const text::AttributedText& text, double width, bool glyphs) {
  if (fonts_.refresh()) clear();
  return breaking(entry(text), std::max(width, 0.0), glyphs).text;
}

QtTextEngine::Entry& QtTextEngine::entry(const text::AttributedText& text) {
  const auto known = index_.find(&text);
  if (known != index_.end()) {
    entries_.splice(entries_.begin(), entries_, known->second);
    return entries_.front();
  }
  if (entries_.size() < maximumEntries) {
    entries_.push_front({text, {}, std::nullopt});
    index_.emplace(&entries_.front().text, entries_.begin());
    return entries_.front();
  }
  // The entry that was used least recently takes the text, with its memory.
  Entry& oldest = entries_.back();
  if (inParagraph_ == &oldest) inParagraph_ = nullptr;
  auto node = index_.extract(&oldest.text);
  oldest.text = text;
  oldest.breakings.clear();
  oldest.leastWidth.reset();
  index_.insert(std::move(node));
  entries_.splice(entries_.begin(), entries_, std::prev(entries_.end()));
  return oldest;
}

QtTextEngine::Breaking& QtTextEngine::breaking(Entry& entry, double width, bool glyphs) {
  auto& known = entry.breakings;
  if (known.empty()) {
    ShapedText natural = breakLines(entry, layout::infinity, glyphs);
    known.push_back({layout::infinity, glyphs, std::move(natural)});
  }
  auto found = std::ranges::find_if(known, [&](const Breaking& b) { return b.serves(width); });
  if (found == known.end()) {
    if (known.size() >= maximumBreakings) known.erase(known.begin() + 1);
    known.push_back({width, glyphs, breakLines(entry, width, glyphs)});
    found = std::prev(known.end());
  } else if (glyphs && !found->hasGlyphs) {
    found->text = breakLines(entry, found->width, true);
    found->hasGlyphs = true;
  }
  return *found;
}

void QtTextEngine::takeUp(const Entry& entry) {
  if (inParagraph_ != &entry) paragraph_.set(entry.text, fonts_);
  inParagraph_ = &entry;
}

ShapedText QtTextEngine::breakLines(const Entry& entry, double width, bool glyphs) {
  if (width == layout::infinity) {
    if (auto figures = figures_.shape(entry.text, fonts_)) return *std::move(figures);
  }
  takeUp(entry);
  ++breaks_;
  return paragraph_.breakLines(width, glyphs);
}

void QtTextEngine::clear() {
  index_.clear();
  entries_.clear();
  pictures_.clear();
  glyphs_.clear();
  figures_.clear();
  inParagraph_ = nullptr;
}

}  // namespace quorix::qt
