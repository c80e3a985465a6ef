#pragma once

#include "platform/swiftui/State.h"
#include "platform/swiftui/View.h"

namespace quorix::swiftui {

/// A sheet that a view asks for. Dismissal by the user writes false through the binding.
struct Presentation {
  Binding<bool> isPresented;
  View content;
};

}  // namespace quorix::swiftui
