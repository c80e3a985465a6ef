// A host's own bundle may be large and unusual. Each reader reads it once: four times the bytes
// take about four times the processor time. A reader with quadratic cost would take sixteen times.

#include <gtest/gtest.h>

#include <algorithm>
#include <ctime>

#include "platform/foundation/StringsFile.h"
#include "platform/graphics/AssetContents.h"
#include "platform/uikit/Nib.h"
#include "tests/core/InterfaceFile.h"

namespace quorix {
namespace {

constexpr std::size_t kMegabyte = 1'000'000;

using Make = std::function<std::string(std::size_t bytes)>;

/// `start`, then copies of `piece` with "#" replaced by a counter up to that many bytes, then
/// `end`.
Make repeated(std::string start, std::string piece, std::string end = "") {
  return [=](std::size_t bytes) {
    std::string text = start;
    for (int i = 0; text.size() < bytes; ++i) {
      std::string one = piece;
      for (std::size_t at = 0; (at = one.find('#', at)) != one.npos;) {
        one.replace(at, 1, std::to_string(i));
      }
      text += one;
    }
    return text + end;
  };
}

Make nested(std::string start, std::string open, std::string close, std::string end) {
  return [=](std::size_t bytes) {
    std::string text = start, closing;
    for (; text.size() < bytes / 2; text += open) closing += close;
    return text + closing + end;
  };
}

void readStrings(const std::string& text) { foundation::readStringsFile(text); }

void readInterface(const std::string& xml) {
  std::shared_ptr<uikit::UIView> box;
  EXPECT_EQ(uikit::Nib::parse(xml, "Card", "Card", {{{"box", &box}}, {}}).index(), 0U);
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

/// An interface file with one label, and with `piece` repeated before `end`.
Make interfaceWith(const std::string& piece, const std::string& end) {
  const std::string file = testing::interfaceFile(testing::labelElement("a", "x"), "");
  const std::size_t at = file.find(end);
  return repeated(file.substr(0, at), piece, file.substr(at));
}

TEST(ReaderCost, IsInProportionToTheBytes) {
  const struct {
    const char* name;
    void (*read)(const std::string&);
    Make make;
  } rows[] = {
      {"comments to a line feed", readStrings, repeated("", "//\n")},
      {"comments to a carriage return", readStrings, repeated("", "// c\r")},
      {"comments to U+2028", readStrings, repeated("", "//\u2028")},
      {"a comment of near line ends", readStrings, repeated("//", "\u2027")},
      {"comments in stars", readStrings, repeated("", "/**/")},
      {"a comment without an end", readStrings, repeated("/*", "/*")},
      {"slashes", readStrings, repeated("k = ", "/")},
      {"blanks of three bytes", readStrings, repeated("", "\u2028")},
      {"entries", readStrings, repeated("", "k# = v#;\n")},
      {"a quoted text", readStrings, repeated("k = \"", "text ", "\";")},
      {"a quoted text without an end", readStrings, repeated("k = \"", "\\\"'")},
      {"escapes", readStrings, repeated("k = \"", "\\n\\Ud83d\\Ude00\\101", "\";")},
      {"a mistake at the end", readStrings, repeated("", "k# = v#;\n", "}")},
      {"bytes in hexadecimal", readStrings, repeated("k = <", "0f ", ">;")},
      {"other values", readStrings, repeated("", "k# = (a, b);\n")},
      {"parentheses in parentheses", readStrings, nested("k = ", "(", "x)", ";")},
      {"parentheses without an end", readStrings, repeated("k = ", "(")},
      {"XML entries", readStrings,
       repeated("<plist><dict>", "<key>k#</key>\n<string>v</string>\n", "</dict></plist>")},
      {"XML values that are no texts", readStrings,
       repeated("<plist><dict>", "<key>k#</key><array/>", "</dict></plist>")},
      {"an XML text in pieces", readStrings,
       repeated("<plist><dict><key>k</key><string>", "&lt;<![CDATA[x]]><!-- -->",
                "</string></dict></plist>")},
      {"XML elements in elements", readStrings,
       nested("<plist><dict><key>k</key>", "<array>", "</array>", "</dict></plist>")},
      {"outlets", readInterface,
       interfaceWith("<outlet property='box' destination='box' id='o#'/>\n", "</connections>")},
      {"labels", readInterface, interfaceWith("<label id='l#' text='x'/>\n", "</subviews>")},
      {"constraints", readInterface,
       interfaceWith(testing::constraintElements("a.top box.top 1") + '\n', "</constraints>")},
      {"colors", readColors,
       repeated(R"({"colors": [{"idiom": "universal", "color": {"components": {"red": "1",
                "green": "1", "blue": "1", "alpha": "1"}}})",
                R"(, {"idiom": "tv#", "color": {}})", "]}")},
      {"images", readImages,
       repeated(R"({"images": [{"filename": "a.svg", "idiom": "universal"})",
                R"(, {"filename": "b#.svg", "idiom": "universal"})", "]}")},
  };
  for (const auto& row : rows) {
    SCOPED_TRACE(row.name);
    const double quarter = secondsFor(row.read, row.make(kMegabyte / 4));
    EXPECT_LT(quarter, kTooSlow);
    if (quarter >= kTooSlow) continue;
    const double whole = secondsFor(row.read, row.make(kMegabyte));
    if (whole < 0.02) continue;  // too short to compare
    EXPECT_LT(whole, 9 * quarter) << whole << " seconds";
  }
}

}  // namespace
}  // namespace quorix
