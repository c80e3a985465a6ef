#pragma once

#include <gtest/gtest.h>
#include <simdjson.h>

#include <functional>
#include <string>

/// Calls `check` with every row of tests/data/<name>.json. A failing row names itself.
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
