#include "bench/LabelsRow.h"

#include <QHBoxLayout>
#include <QLabel>

#include "bench/Palette.h"
#include "bench/Shopper.h"

namespace quorix::bench {
namespace {

constexpr int kPixels = 14;

QFont title(QFont font) {
  font.setUnderline(true);
  font.setCapitalization(QFont::AllUppercase);
  return font;
}

QFont medium(QFont font) {
  font.setWeight(QFont::Medium);
  return font;
}

QFont struckThrough(QFont font) {
  font.setStrikeOut(true);
  return font;
}

}  // namespace

LabelsRow::LabelsRow(const Shopper& shopper, QWidget* parent) : LabelsWidget(parent) {
  static const QFont titleFont = title(font(kPixels)), feeFont = medium(font(kPixels)),
                     baseFeeFont = struckThrough(font(kPixels));
  static const QPalette dark = ink(inkColor()), faded = ink(fadedColor());
  setAccessibleName(shopper.label);
  setAccessibleDescription(shopper.hint);
  auto* layout = new QHBoxLayout(this);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->setSpacing(12);
  layout->addWidget(label(shopper.title, titleFont, dark));
  layout->addStretch();
  layout->addWidget(label(shopper.fee, feeFont, dark));
  layout->addWidget(label(shopper.baseFee, baseFeeFont, faded));
}

}  // namespace quorix::bench
