#include "platform/foundation/StringFormat.h"

#include <gtest/gtest.h>

#include <charconv>
#include <cmath>
#include <cstdio>
#include <limits>

#include "Vectors.h"

namespace quorix::foundation {
namespace {

using Limits = std::numeric_limits<double>;

double number(std::string_view text) {
  double value = 0;
  std::from_chars(text.data(), text.data() + text.size(), value);
  return value;
}

TEST(StringFormat, ShowsWhatPhonesShow) {
  forEachRow("formats", [](simdjson::dom::element row) {
    const bool isText = row["string"].error() == simdjson::SUCCESS;
    const FormatArgument argument =
        isText ? FormatArgument(text(row, "string")) : FormatArgument(number(text(row, "double")));
    EXPECT_EQ(formatted(text(row, "format"), {argument}), text(row, "text"));
  });
}

/// The C library is asked in the "C" locale, which is the one a test runs in.
TEST(StringFormat, ShowsNumbersAsTheCLibraryDoes) {
  const double numbers[] = {0.0,
                            -0.0,
                            1.0,
                            -1.5,
                            0.1,
                            9.9999,
                            1e-5,
                            123456.5,
                            1e15,
                            1e300,
                            -2.5e-7,
                            5e-324,
                            0x1p-1022,
                            Limits::max(),
                            Limits::infinity(),
                            -Limits::infinity()};
  for (const char* flags : {"", "-", "+", " ", "#", "0", "+0", "#0", "-#+", "' "}) {
    for (const char* size : {"", "1", "12", ".", ".0", ".1", "20.9", "40.17", ".340"}) {
      for (const char letter : std::string_view("fFeEgGaA")) {
        const std::string format = std::string("%") + flags + size + letter;
        for (const double value : numbers) {
          // How many digits a subnormal number has before its point is left to each library.
          const bool hex = letter == 'a' || letter == 'A';
          if (hex && value != 0 && std::fabs(value) < Limits::min()) continue;
          char expected[1024];
          std::snprintf(expected, sizeof expected, format.c_str(), value);
          EXPECT_EQ(formatted(format, {value}), expected) << format;
        }
      }
    }
  }
}

TEST(StringFormat, ShowsWholeNumbersAsTheCLibraryDoes) {
  for (const char* flags : {"", "-", "+", " ", "#", "0", "#0", "+-"}) {
    for (const char* size : {"", "8", "8.3", ".0", ".25"}) {
      for (const char letter : std::string_view("diuoxX")) {
        const std::string format = std::string("%") + flags + size + letter;
        const std::string wide = format.substr(0, format.size() - 1) + "ll" + letter;
        for (const long long value : {0LL, 7LL, -42LL, 1LL << 53}) {
          char expected[128];
          std::snprintf(expected, sizeof expected, wide.c_str(), value);
          EXPECT_EQ(formatted(format, {static_cast<double>(value)}), expected) << format;
          EXPECT_EQ(formatted(wide, {static_cast<double>(value)}), expected) << wide;
        }
      }
    }
  }
}

/// Whatever a table holds, what is shown is an argument, the table's own text, or nothing.
TEST(StringFormat, IsSafeWithAnyFormat) {
  const std::string blanks(512 - 4, ' ');
  const struct {
    std::string format;
    std::vector<FormatArgument> arguments;
    std::string text;
  } rows[] = {
      {"%@ %f %d %s", {}, "(null) (null) (null) (null)"},
      {"%2$@ %1$.1f %3$@ %99999999999999999999$@", {1.0, "Ann"}, "Ann 1.0 (null) (null)"},
      {"%@ %s %S %c %p", {35.0, 0.1, 1e300, 65.0, -0.5}, "35 0.1 1e+300 65 -0.5"},
      {"%f %.1e %5d %x %c %p %s", {"a", "b", "c", "d", "e", "f", "g"}, "a b c d e f g"},
      {"%d %i %u", {49.9, -0.5, 3e9}, "49 0 3000000000"},
      {"%d %u", {1e300, 1e300}, "9223372036854775807 18446744073709551615"},
      {"%d %D %x",
       {-Limits::infinity(), Limits::quiet_NaN(), -1.0},
       "-9223372036854775808 0 ffffffffffffffff"},
      {"[%+6.2f] [%06f]", {Limits::quiet_NaN(), Limits::infinity()}, "[   nan] [   inf]"},
      {"%n%@", {"a", "b"}, "b"},
      {"%y%-10y %é%1$2$@ %0$@ 5%%%", {"a"}, " @ @ 5%"},
      {"%", {"a"}, ""},
      {"%-+ #0123.45ll", {1.0}, ""},
      {"%1$", {1.0}, ""},
      {"%999999999999999999999.0f|", {1.0}, "   " + blanks + "1|"},
      {"%-99999999999999999999.0f|", {1.0}, "1   " + blanks + "|"},
      {"[%*.*f]", {6.0, 1.0, 2.25}, "[   2.2]"},
      {"[%*.*f]", {-6.0, -1.0, 2.5}, "[2.500000]"},
      {"[%3$*1$.*2$f]", {6.0, 0.0, 2.5}, "[     2]"},
      {"[%*f] [%*f]", {"wide", 1.0, Limits::quiet_NaN(), 2.0}, "[1.000000] [2.000000]"},
      {"[%*.0f]", {1e300, 1.0}, "[   " + blanks + "1]"},
      {"[%.*f", {1.0}, "[(null)"},
      {std::string("a\0%@\0", 5), {std::string("b\0", 2)}, std::string("a\0b\0\0", 5)},
  };
  for (const auto& row : rows)
    EXPECT_EQ(formatted(row.format, row.arguments), row.text) << row.format;
  EXPECT_EQ(formatted("%.99999f", {1.0}).size(), 2u + 512);
  EXPECT_EQ(formatted("%.99999f", {Limits::max()}).size(), 309u + 1 + 512);
}

}  // namespace
}  // namespace quorix::foundation
