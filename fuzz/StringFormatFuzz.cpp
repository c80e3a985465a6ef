#include <cmath>
#include <cstdint>
#include <cstdio>
#include <cstring>

#include "fuzz/Expect.h"
#include "platform/foundation/StringFormat.h"

using namespace quorix::foundation;

namespace {

/// The conversion in the C library's syntax; empty if it would not mean the same there.
std::string forTheCLibrary(const FormatConversion& conversion) {
  if (conversion.kind != FormatConversion::Kind::number || conversion.width.argument ||
      conversion.precision.argument) {
    return {};
  }
  std::string format = "%";
  for (const char flag : conversion.flags) {
    if (flag != '\'') format += flag;
  }
  if (conversion.width.value) format += std::to_string(*conversion.width.value);
  if (conversion.precision.value) format += '.' + std::to_string(*conversion.precision.value);
  return format + conversion.letter;
}

void compare(const std::string& format, double number) {
  if (format.empty() || std::isnan(number)) return;
  char expected[2048];
  std::snprintf(expected, sizeof expected, format.c_str(), number);
  expect(formatted(format, {number}) == expected, "a number shows as the C library shows it");
}

}  // namespace

/// The first eight bytes are a number, the rest is a format.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size) {
  double number = 0;
  if (size < sizeof number) return 0;
  std::memcpy(&number, bytes, sizeof number);
  const std::string format(reinterpret_cast<const char*>(bytes) + sizeof number,
                           size - sizeof number);
  const auto found = conversions(format);
  for (const FormatConversion& conversion : found) {
    compare(forTheCLibrary(conversion), number);
    const char* const start = conversion.source.data();
    expect(
        start >= format.data() && start + conversion.source.size() <= format.data() + format.size(),
        "a conversion lies in its format");
  }
  for (const auto& arguments :
       {std::vector<FormatArgument>{}, {number}, {std::string("%n%s%@")}, {number, "b", number}}) {
    // The longest field is a number of 309 digits with 512 places.
    expect(formatted(format, arguments).size() <= format.size() + found.size() * 1024,
           "no format makes a text without bounds");
  }
  return 0;
}
