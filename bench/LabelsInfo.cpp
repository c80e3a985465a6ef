#include "bench/LabelsInfo.h"

#include <QLabel>
#include <QPixmap>
#include <QVBoxLayout>

#include "bench/InfoSubject.h"
#include "bench/Palette.h"

namespace quorix::bench {
namespace {

constexpr int kPixels = 13;

QFont underlined(QFont font) {
  font.setUnderline(true);
  return font;
}

QPalette grounded(QPalette palette) {
  palette.setColor(QPalette::Window, groundColor());
  return palette;
}

}  // namespace

LabelsInfo::LabelsInfo(const InfoSubject& info, QWidget* parent) : LabelsWidget(parent) {
  static const QFont titleFont = font(kPixels), linkFont = underlined(font(kPixels));
  static const QPalette texts = ink(inkColor()), ground = grounded(texts);
  static const QPixmap logo(QStringLiteral(":/bench/poweredBy.svg"));
  setPalette(ground);
  setAutoFillBackground(true);
  setAccessibleName(info.title);
  auto* layout = new QVBoxLayout(this);
  layout->setContentsMargins(16, 16, 16, 16);
  layout->setSpacing(16);
  QLabel* title = label({}, titleFont, texts);
  title->setTextFormat(Qt::RichText);
  title->setWordWrap(true);
  title->setText(info.styledTitle);
  layout->addWidget(title);
  auto* line = new QHBoxLayout;
  layout->addLayout(line);
  line->addWidget(label(info.link, linkFont, texts));
  line->addStretch();
  auto* image = new QLabel(this);
  image->setPixmap(logo);
  line->addWidget(image);
}

}  // namespace quorix::bench
