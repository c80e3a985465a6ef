#pragma once

#include <QByteArray>
#include <optional>
#include <string>
#include <variant>

#include "tools/quorix/CommandLine.h"

namespace quorix::tool {

/// The bytes of the file at `path`, or a failure with the path and the reason.
std::variant<std::string, Failure> readInputFile(const std::string& path);

/// Writes `bytes` to the file at `path`. On failure, an existing file stays unchanged.
std::optional<Failure> writeFile(const std::string& path, const QByteArray& bytes);

}  // namespace quorix::tool
