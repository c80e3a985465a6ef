#pragma once

#include <cstdint>

namespace quorix::swiftui {

enum class TextCase : std::uint8_t { uppercase };
enum class AccessibilityChildren : std::uint8_t { ignore };
enum class AccessibilityTrait : std::uint8_t { isButton, isHeader };
enum class TaskPriority : std::uint8_t { userInitiated };

}  // namespace quorix::swiftui
