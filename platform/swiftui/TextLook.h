#pragma once

#include <string>
#include <variant>

#include "platform/foundation/Export.h"
#include "platform/swiftui/Color.h"
#include "platform/swiftui/Font.h"
#include "platform/swiftui/Traits.h"

namespace quorix::swiftui {

struct Look;

/// What reaches down from a modifier to the texts and images below it: how it changes the look
/// there, and how a printed tree words it.
namespace looks {

struct FontChoice {
  Font font;
  void apply(Look& look) const;
  std::string description() const;
};
struct Weight {
  FontWeight weight;
  void apply(Look& look) const;
  std::string description() const;
};
struct Bold {
  void apply(Look& look) const;
  std::string description() const;
};
struct Underline {
  bool active;
  void apply(Look& look) const;
  std::string description() const;
};
struct Strikethrough {
  bool active;
  void apply(Look& look) const;
  std::string description() const;
};
struct ForegroundColor {
  Color color;
  void apply(Look& look) const;
  std::string description() const;
};
struct Case {
  TextCase value;
  void apply(Look& look) const;
  std::string description() const;
};
struct Resizable {
  void apply(Look& look) const;
  std::string description() const;
};

}  // namespace looks

/// The looks that a text can carry itself.
using TextLook = std::variant<looks::FontChoice, looks::Weight, looks::Bold, looks::Underline,
                              looks::ForegroundColor>;

}  // namespace quorix::swiftui
