#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "platform/uikit/UIColor.h"
#include "platform/uikit/UIFont.h"

namespace quorix::uikit {

/// The numbers are the platform's.
enum class NSUnderlineStyle : std::uint8_t { none = 0, single = 1, thick = 2 };

/// The look of a run of text. An absent value is the label's.
struct NSAttributes {
  UIFont::Ref font = nullptr;              ///< null: the label's
  UIColor::Ref foregroundColor = nullptr;  ///< null: the label's
  std::optional<NSUnderlineStyle> underlineStyle = std::nullopt;
  bool operator==(const NSAttributes&) const = default;
};

/// A text in runs, each with its own look. A value.
class NSAttributedString {
 public:
  struct Run {
    std::string text;  ///< UTF-8
    NSAttributes attributes;
    bool operator==(const Run&) const = default;
  };

  NSAttributedString() = default;
  explicit NSAttributedString(std::string text, NSAttributes attributes = {}) {
    if (!text.empty()) runs_.push_back({std::move(text), std::move(attributes)});
  }

  /// The text of all runs.
  std::string string() const {
    std::string words;
    for (const Run& run : runs_) words += run.text;
    return words;
  }
  /// In reading order, none of them empty.
  const std::vector<Run>& runs() const { return runs_; }

  bool operator==(const NSAttributedString&) const = default;

 protected:
  std::vector<Run> runs_;
};

/// An attributed text that can be extended.
///
///     NSMutableAttributedString title("Return rate of ", {.font = regular});
///     title.append(NSAttributedString("20%", {.font = semiBold}));
class NSMutableAttributedString : public NSAttributedString {
 public:
  using NSAttributedString::NSAttributedString;

  void append(const NSAttributedString& other) {
    const auto added = other.runs();  // a copy: `other` may be this object
    runs_.insert(runs_.end(), added.begin(), added.end());
  }
  /// Of every run.
  void setFont(const UIFont::Ref& font) {
    for (Run& run : runs_) run.attributes.font = font;
  }
  void setForegroundColor(const UIColor::Ref& color) {
    for (Run& run : runs_) run.attributes.foregroundColor = color;
  }
};

}  // namespace quorix::uikit
