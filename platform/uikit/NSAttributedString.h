#pragma once

#include <algorithm>
#include <cstdint>
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "platform/foundation/Export.h"
#include "platform/uikit/UIColor.h"
#include "platform/uikit/UIFont.h"

namespace quorix::uikit {

/// The numeric values are the platform's.
enum class NSUnderlineStyle : std::uint8_t { none = 0, thick = 2 };

/// The look of a run of text.
struct NSAttributes {
  UIFont::Ref font = nullptr;              ///< null: the label's
  UIColor::Ref foregroundColor = nullptr;  ///< null: the label's
  NSUnderlineStyle underlineStyle = NSUnderlineStyle::none;
  bool operator==(const NSAttributes&) const = default;
};

/// A text in runs, each with its own look. A value: copies share the runs until one is changed.
/// Main thread.
class NSAttributedString {
 public:
  struct Run {
    std::string text;  ///< UTF-8
    NSAttributes attributes;
    bool operator==(const Run&) const = default;
  };

  NSAttributedString() = default;
  explicit NSAttributedString(std::string text, NSAttributes attributes = {}) {
    if (!text.empty()) ownRuns().push_back({std::move(text), std::move(attributes)});
  }

  /// The text of all runs.
  std::string string() const {
    std::string words;
    for (const Run& run : runs()) words += run.text;
    return words;
  }
  /// The runs in reading order; none is empty.
  const std::vector<Run>& runs() const {
    static const auto& none = *new std::vector<Run>;  // static views may outlive `main`
    return runs_ ? *runs_ : none;
  }

  /// Returns an equal text that shares its runs with the latest few texts on which this was called.
  /// Use it for texts that many views show.
  QUORIX_EXPORT NSAttributedString shared() const;

  bool operator==(const NSAttributedString& other) const { return runs() == other.runs(); }

 protected:
  /// The runs for a change; copies them if they are shared.
  std::vector<Run>& ownRuns() {
    if (!runs_ || runs_.use_count() > 1) runs_ = std::make_shared<std::vector<Run>>(runs());
    return *runs_;
  }

 private:
  std::shared_ptr<std::vector<Run>> runs_;  ///< null: none
};

/// An attributed text that can be extended.
///
///     NSMutableAttributedString title("Return rate of ", {.font = regular});
///     title.append(NSAttributedString("20%", {.font = semiBold}));
class NSMutableAttributedString : public NSAttributedString {
 public:
  using NSAttributedString::NSAttributedString;
  explicit NSMutableAttributedString(NSAttributedString text)
      : NSAttributedString(std::move(text)) {}

  void append(const NSAttributedString& other) {
    const NSAttributedString kept = other;  // may be this object
    auto& runs = ownRuns();
    runs.insert(runs.end(), kept.runs().begin(), kept.runs().end());
  }
  /// Sets the font of every run.
  void setFont(const UIFont::Ref& font) { setOfAll(&NSAttributes::font, font); }
  void setForegroundColor(const UIColor::Ref& color) {
    setOfAll(&NSAttributes::foregroundColor, color);
  }

 private:
  template <class Value>
  void setOfAll(Value NSAttributes::*member, const Value& value) {
    const auto has = [&](const Run& run) { return run.attributes.*member == value; };
    if (std::all_of(runs().begin(), runs().end(), has)) return;
    for (Run& run : ownRuns()) run.attributes.*member = value;
  }
};

}  // namespace quorix::uikit
