#include <algorithm>
#include <cstdint>
#include <string_view>

#include "fuzz/Expect.h"
#include "platform/foundation/HTTPResponseReader.h"

using quorix::foundation::HTTPResponseReader;
using State = HTTPResponseReader::State;

namespace {

State readIn(HTTPResponseReader& reader, std::string_view bytes, std::size_t piece) {
  for (; !bytes.empty(); bytes.remove_prefix(std::min(piece, bytes.size()))) {
    reader.read(bytes.substr(0, piece));
  }
  return reader.readEnd();
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size) {
  const std::string_view input(reinterpret_cast<const char*>(bytes), size);
  HTTPResponseReader whole, pieces;
  const State state = readIn(whole, input, size);
  expect(state != State::incomplete, "the connection's end is an answer's end");
  const State again = readIn(pieces, input, 1 + size % 7);
  // If a malformed answer arrives in pieces, it may be reported as cut short.
  expect((state == State::complete) == (again == State::complete), "pieces do not matter");
  if (state != State::complete) return 0;
  expect(whole.status() == pieces.status() && whole.body() == pieces.body(), "nor to the body");
  expect(!whole.body() || whole.body()->size() <= HTTPResponseReader::bodyLimit, "within bounds");
  return 0;
}
