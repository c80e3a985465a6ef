#include "platform/foundation/StringFormat.h"

#include <cmath>
#include <cstdio>
#include <limits>

#include "Vectors.h"

namespace quorix::foundation {
namespace {

using Limits = std::numeric_limits<double>;

TEST(StringFormat, ShowsWhatPhonesShow) {
  forEachRow("formats", [](simdjson::dom::element row) {
    const bool isText = row["string"].error() == simdjson::SUCCESS;
    const FormatArgument argument =
        isText ? FormatArgument(text(row, "string")) : FormatArgument(number(row, "double"));
    EXPECT_EQ(formatted(text(row, "format"), {argument}), text(row, "text"));
  });
}

/// The C library is asked in the "C" locale, which is the one a test runs in.
template <class Number>
void expectAsInC(const std::string& format, const std::string& inC, Number value) {
  char expected[1024];
  std::snprintf(expected, sizeof expected, inC.c_str(), value);
  EXPECT_EQ(formatted(format, {static_cast<double>(value)}), expected) << format;
}

TEST(StringFormat, ShowsNumbersAsTheCLibraryDoes) {
  const std::vector<double> numbers = {
      0.0,  -0.0,  1.0,     -1.5,   0.1,       9.9999,        1e-5,     123456.5,
      1e15, 1e300, -2.5e-7, 5e-324, 0x1p-1022, Limits::max(), HUGE_VAL, -HUGE_VAL};
  for (const std::string flags : {"", "-", "+", " ", "#", "0", "+0", "#0", "-#+", "' "}) {
    for (const char* size : {"", "1", "12", ".", ".0", ".1", "20.9", "40.17", ".340"}) {
      const std::string start = "%" + flags + size;
      for (const char letter : std::string_view("fFeEgGaA")) {
        for (const double value : numbers) {
          // How many digits a subnormal number has before its point is left to each library.
          const bool hex = letter == 'a' || letter == 'A';
          if (hex && value != 0 && std::fabs(value) < Limits::min()) continue;
          expectAsInC(start + letter, start + letter, value);
        }
      }
      if (flags == "' ") continue;  // which mean nothing here
      for (const char letter : std::string_view("diuoxX")) {
        for (const long long value : {0LL, 7LL, -42LL, 1LL << 53}) {
          expectAsInC(start + letter, start + "ll" + letter, value);
          expectAsInC(start + "ll" + letter, start + "ll" + letter, value);
        }
      }
    }
  }
}

FormatArgument argument(simdjson::dom::element value) {
  if (value.is_string()) return std::string(std::string_view(value));
  return value.is_object() ? number(value, "double") : double(value);
}

/// For every table, what is shown is an argument, the table's own text, or nothing.
TEST(StringFormat, IsSafeWithAnyFormat) {
  forEachRow("formats_own", [](simdjson::dom::element row) {
    std::vector<FormatArgument> arguments;
    for (const auto value : row["arguments"].get_array()) arguments.push_back(argument(value));
    EXPECT_EQ(formatted(text(row, "format"), arguments), text(row, "text"));
  });
}

TEST(StringFormat, BoundsItsFields) {
  const std::string blanks(511, ' ');
  EXPECT_EQ(formatted("%999999999999999999999.0f|", {1.0}), blanks + "1|");
  EXPECT_EQ(formatted("%-99999999999999999999.0f|", {1.0}), "1" + blanks + "|");
  EXPECT_EQ(formatted("%*.0f|", {1e300, 1.0}), blanks + "1|");
  EXPECT_EQ(formatted("%.99999f", {1.0}).size(), 2u + 512);
  EXPECT_EQ(formatted("%.99999f", {Limits::max()}).size(), 309u + 1 + 512);
}

}  // namespace
}  // namespace quorix::foundation
