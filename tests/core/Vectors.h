#pragma once

#include <gmock/gmock.h>
#include <simdjson.h>

#include <bit>
#include <charconv>
#include <fstream>
#include <functional>
#include <iterator>
#include <string>
#include <vector>

#include "platform/layout/Geometry.h"

/// Calls `check` with every row of tests/data/<name>.json. A failure contains the row.
inline void forEachRow(const std::string& name,
                       const std::function<void(simdjson::dom::element)>& check) {
  simdjson::dom::parser parser;
  simdjson::dom::element rows;
  ASSERT_EQ(parser.load(TEST_DATA "/" + name + ".json")["rows"].get(rows), simdjson::SUCCESS);
  ASSERT_GT(rows.get_array().size(), 0u);
  for (const simdjson::dom::element row : rows) {
    SCOPED_TRACE(simdjson::to_string(row).substr(0, 400));
    check(row);
  }
}

inline std::string text(simdjson::dom::element row, std::string_view key) {
  return std::string(std::string_view(row[key]));
}

inline std::vector<std::string> texts(simdjson::dom::array list) {
  std::vector<std::string> result;
  for (const simdjson::dom::element text : list) result.emplace_back(std::string_view(text));
  return result;
}

/// A number in decimal digits that JSON cannot represent exactly; also "inf" and "nan".
inline double number(simdjson::dom::element row, std::string_view key) {
  const std::string digits = text(row, key);
  double value = 0;
  std::from_chars(digits.data(), digits.data() + digits.size(), value);
  return value;
}

/// A number written as the hexadecimal digits of its 64 bits.
inline double bitsOfDouble(simdjson::dom::element row, std::string_view key) {
  return std::bit_cast<double>(std::uint64_t{std::stoull(text(row, key), nullptr, 16)});
}

/// A point written as [x, y].
inline quorix::layout::Point point(simdjson::dom::element numbers) {
  return {double(numbers.at(0)), double(numbers.at(1))};
}

/// A frame written as [left, top, width, height].
inline quorix::layout::Rect rect(simdjson::dom::element numbers) {
  const auto at = [&](std::size_t i) { return double(numbers.at(i)); };
  return {{at(0), at(1)}, {at(2), at(3)}};
}

/// The bytes of hexadecimal digits. Pairs may be separated by blanks.
inline std::string fromHex(std::string_view hex) {
  std::string bytes;
  for (std::size_t i = 0; i < hex.size(); i += hex[i] == ' ' ? 1 : 2) {
    if (hex[i] == ' ') continue;
    bytes += static_cast<char>(std::stoi(std::string(hex.substr(i, 2)), nullptr, 16));
  }
  return bytes;
}

/// The whole text of tests/data/<name>.
inline std::string contentsOf(const std::string& name) {
  std::ifstream file(TEST_DATA "/" + name);
  return {std::istreambuf_iterator<char>(file), {}};
}

/// `text` with "<EF BB BF>" replaced by these bytes. "<>" stands for none.
inline std::string withBytes(std::string text) {
  for (std::size_t at = 0; (at = text.find('<', at)) != std::string::npos;) {
    const std::size_t end = text.find('>', at);
    const std::string bytes = fromHex(text.substr(at + 1, end - at - 1));
    text.replace(at, end - at + 1, bytes);
    at += bytes.size();
  }
  return text;
}

/// The lines of tests/data/<name>.txt, without comments and `withBytes`.
inline std::vector<std::string> readLines(const std::string& name) {
  std::ifstream file(TEST_DATA "/" + name + ".txt");
  EXPECT_TRUE(file) << name;
  std::vector<std::string> lines;
  for (std::string line; std::getline(file, line);) {
    if (!line.starts_with('#')) lines.push_back(withBytes(line));
  }
  return lines;
}
