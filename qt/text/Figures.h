#pragma once

#include <QRawFont>
#include <QStringView>
#include <array>
#include <cstddef>
#include <optional>
#include <string>
#include <vector>

#include "platform/text/AttributedText.h"
#include "qt/text/Paragraph.h"
#include "qt/text/QtFonts.h"

namespace quorix::qt {

/// Prices on one line, set without shaping each: in most faces a digit or a sign always looks the
/// same, and its room depends on the next one alone. A face is asked about that, once it has had
/// some prices, with every two of them beside each other. Main thread.
class Figures {
 public:
  /// What `Paragraph` makes of `text` where there is no end to a line. Absent where that has to be
  /// asked: for other texts, and in faces of more rules.
  std::optional<ShapedText> shape(const text::AttributedText& text, QtFonts& fonts);

  void clear() { faces_.clear(); }

  /// Whether `run` has digits, and so may be another text in each row.
  static bool areIn(const text::Run& run) {
    return run.text.find_first_of("0123456789") != std::string::npos;
  }

 private:
  static constexpr QStringView characters = u"0123456789.,\u00A0€$£";
  static constexpr auto count = static_cast<std::size_t>(characters.size());

  struct Glyph {
    std::optional<quint32> index;
    /// Pixels of the shaping font to each of `characters` as the next one, and at the end.
    std::array<std::optional<double>, count + 1> advances;
  };
  struct Face {
    std::string name;
    swiftui::FontWeight weight;
    int prices = 0;  ///< that it has had
    bool isLearned = false;
    QRawFont font{};
    double baseline = 0;  ///< pixels of the shaping font
    double height = 0;    ///< likewise
    std::array<Glyph, count> glyphs{};
  };

  Face& face(const text::ResolvedFont& font);
  static bool learn(Face& face, QtFonts& fonts);
  static bool learn(Face& face, const QString& text, const ShapedText& shaped);

  std::vector<Face> faces_;
};

}  // namespace quorix::qt
