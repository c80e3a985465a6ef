#include "tools/quorix/preview/PreviewControls.h"

#include <QComboBox>
#include <QLocale>
#include <QSlider>
#include <QSpinBox>
#include <utility>

namespace quorix::tool {
namespace {

/// "de, German"
QString titleOf(const QString& language) {
  const QLocale known(language);
  if (known.language() == QLocale::C) return language;
  return language + QStringLiteral(", ") + QLocale::languageToString(known.language());
}

/// The results of `title` for `entries`.
QStringList titlesOf(const auto& entries, const auto& title) {
  QStringList titles;
  for (const auto& entry : entries) titles.append(title(entry));
  return titles;
}

}  // namespace

PreviewControls::PreviewControls(PreviewChoices choices, const QStringList& languages)
    : choices_(std::move(choices)), form_(new QFormLayout(this)), line_(new QLabel) {
  setWindowTitle(tr("Quorix preview"));
  const auto textOf = [](std::string_view text) { return QString::fromUtf8(text); };
  addList(tr("&Widget"), {tr("Score row"), tr("Info widget"), tr("Info widget, imperative")},
          choices_.widget, [this](int i) { choices_.widget = i; });
  addList(tr("&Shopper"), titlesOf(choices_.shoppers, [](const auto& each) { return each.title; }),
          *choices_.shopper, [this](int i) { choices_.shopper = i; });
  addList(tr("&Language"), titlesOf(languages, titleOf),
          static_cast<int>(languages.indexOf(QString::fromStdString(choices_.locale))),
          [this, languages](int i) { choices_.locale = languages[i].toStdString(); });
  addList(tr("&Appearance"), {tr("Light"), tr("Dark")}, choices_.appearance,
          [this](int i) { choices_.appearance = i; });
  addList(tr("&Text size"), titlesOf(textSizeNames(), textOf), choices_.textSize,
          [this](int i) { choices_.textSize = i; });
  addList(tr("&Direction"), {tr("The language's"), tr("Left to right"), tr("Right to left")},
          choices_.direction ? 1 + *choices_.direction : 0,
          [this](int i) { choices_.direction = i > 0 ? std::optional(i - 1) : std::nullopt; });
  addWidth();
  line_->setWordWrap(true);
  line_->setTextFormat(Qt::PlainText);
  line_->setAlignment(Qt::AlignLeading | Qt::AlignTop);
  line_->setMinimumHeight(4 * fontMetrics().lineSpacing());
  form_->addRow(line_);
}

void PreviewControls::addList(const QString& caption, const QStringList& titles, int current,
                              std::function<void(int)> choose) {
  auto* list = new QComboBox;
  list->addItems(titles);
  list->setCurrentIndex(current);
  connect(list, &QComboBox::currentIndexChanged, this, [this, choose = std::move(choose)](int i) {
    choose(i);
    emit chosen();
  });
  form_->addRow(caption, list);
}

void PreviewControls::addWidth() {
  auto* points = new QSpinBox;
  auto* slide = new QSlider(Qt::Horizontal);
  points->setRange(PreviewChoices::narrowest, PreviewChoices::widest);
  slide->setRange(PreviewChoices::narrowest, PreviewChoices::widest);
  connect(points, &QSpinBox::valueChanged, slide, &QSlider::setValue);
  points->setValue(static_cast<int>(choices_.width));
  connect(slide, &QSlider::valueChanged, points, &QSpinBox::setValue);
  connect(points, &QSpinBox::valueChanged, this, [this](int width) {
    choices_.width = width;
    emit chosen();
  });
  form_->addRow(tr("W&idth"), points);
  form_->addRow(slide);
}

}  // namespace quorix::tool
