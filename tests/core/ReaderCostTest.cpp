// A host's own bundle may be large and unusual. Each reader reads it once: four times the bytes
// take about four times the processor time. A reader with quadratic cost would take sixteen times.

#include <ctime>
#include <map>

#include "platform/foundation/StringTable.h"
#include "platform/graphics/AssetContents.h"
#include "platform/uikit/Nib.h"
#include "tests/core/Resources.h"
#include "tests/core/Vectors.h"

namespace quorix {
namespace {

constexpr std::size_t kMegabyte = 1'000'000;

/// A text of so many bytes: `start`, copies of `piece` with "#" replaced by a counter, as many of
/// `closing`, and `end`.
std::string made(simdjson::dom::element row, std::size_t bytes) {
  std::string made = ::text(row, "start"), closings;
  const std::string piece = ::text(row, "piece"), closing = ::text(row, "closing");
  for (int i = 0; made.size() + closings.size() < bytes; ++i) {
    for (const char letter : piece) made += letter == '#' ? std::to_string(i) : std::string{letter};
    closings += closing;
  }
  return made + closings + ::text(row, "end");
}

void readStrings(const std::string& text) { foundation::readStringsFile(text); }

void readInterface(const std::string& xml) {
  std::shared_ptr<uikit::UIView> box;
  const auto bundle = testing::memoryBundle({{"Card.xib", xml}});
  EXPECT_EQ(uikit::Nib::load("Card", *bundle, "Card", {{{"box", &box}}, {}}).index(), 0U);
}

void readColors(const std::string& json) { EXPECT_TRUE(graphics::parseColorSet(json)); }
void readImages(const std::string& json) { EXPECT_TRUE(graphics::parseImageSet(json)); }

constexpr double kTooSlow = 2;  // for a quarter; a linear reader takes some hundredths

/// Processor time of this process in seconds: the minimum of three runs.
double secondsFor(void (*read)(const std::string&), const std::string& text) {
  double least = 0;
  for (int i = 0; i < 3 && (i == 0 || least < kTooSlow); ++i) {
    const std::clock_t start = std::clock();
    read(text);
    const double took = static_cast<double>(std::clock() - start) / CLOCKS_PER_SEC;
    least = i == 0 ? took : std::min(least, took);
  }
  return least;
}

TEST(ReaderCost, IsInProportionToTheBytes) {
  const std::map<std::string, void (*)(const std::string&)> readers = {
      {"strings", readStrings},
      {"interface", readInterface},
      {"colors", readColors},
      {"images", readImages},
  };
  forEachRow("costs", [&](simdjson::dom::element row) {
    const auto read = readers.at(::text(row, "reader"));
    const double quarter = secondsFor(read, made(row, kMegabyte / 4));
    EXPECT_LT(quarter, kTooSlow);
    if (quarter >= kTooSlow) return;
    const double whole = secondsFor(read, made(row, kMegabyte));
    if (whole < 0.02) return;  // too short to compare
    EXPECT_LT(whole, 9 * quarter) << whole << " seconds";
  });
}

}  // namespace
}  // namespace quorix
