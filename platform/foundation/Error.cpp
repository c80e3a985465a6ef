#include "platform/foundation/Error.h"

#include <cstdio>
#include <cstdlib>
#include <string>

namespace quorix::foundation {

void fatalError(std::string_view message, std::string_view source) {
  std::string line(source);
  if (!source.empty()) line += ": ";
  line += "Fatal error: ";
  line += message;
  line += '\n';
  std::fputs(line.c_str(), stderr);
  std::abort();
}

}  // namespace quorix::foundation
