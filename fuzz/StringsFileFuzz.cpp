#include <cstdint>

#include "QuorixWidgets/localization/Strings.h"
#include "fuzz/Expect.h"
#include "platform/foundation/StringTable.h"

using namespace quorix::foundation;

namespace {

std::string quoted(const std::string& text) {
  std::string result = "\"";
  for (const char c : text) {
    if (c == '"' || c == '\\') result += '\\';
    result += c;
  }
  return result + '"';
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size) {
  const auto result = readStringsFile({reinterpret_cast<const char*>(bytes), size});
  if (const auto* error = std::get_if<Error>(&result)) {
    expect(error->domain == "StringsFile" && error->description.starts_with("line "),
           "every refusal has its domain and line");
    return 0;
  }
  const StringTable& table = std::get<StringTable>(result);
  std::string written = "/* again */";
  for (const auto& [key, text] : table) written += quoted(key) + '=' + quoted(text) + ";\n";
  expect(std::get<StringTable>(readStringsFile(written)) == table, "a table survives writing it");
  for (const auto& problem : quorix::problems(table)) {
    expect(!problem.what.empty(), "a finding says what it is");
  }
  return 0;
}
