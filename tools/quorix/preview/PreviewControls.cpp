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

QStringList titlesOf(const QStringList& languages) {
  QStringList titles;
  for (const QString& language : languages) titles.append(titleOf(language));
  return titles;
}

QStringList titlesOf(const std::vector<PreviewChoices::Shopper>& shoppers) {
  QStringList titles;
  for (const auto& shopper : shoppers) titles.append(shopper.title);
  return titles;
}

QStringList textSizes() {
  QStringList names;
  const auto last =
      static_cast<int>(swiftui::ContentSizeCategory::accessibilityExtraExtraExtraLarge);
  for (int i = 0; i <= last; ++i) {
    const auto name = nameOf(static_cast<swiftui::ContentSizeCategory>(i));
    names.append(QString::fromLatin1(name.data(), static_cast<qsizetype>(name.size())));
  }
  return names;
}

}  // namespace

PreviewControls::PreviewControls(PreviewChoices choices, const QStringList& languages)
    : choices_(std::move(choices)), form_(new QFormLayout(this)), line_(new QLabel) {
  using layout::LayoutDirection;
  setWindowTitle(tr("Quorix preview"));
  addList(tr("&Widget"), {tr("Score row"), tr("Info widget"), tr("Info widget, imperative")},
          static_cast<std::size_t>(choices_.widget),
          [this](int i) { choices_.widget = static_cast<PreviewChoices::Widget>(i); });
  addList(tr("&Shopper"), titlesOf(choices_.shoppers), choices_.shopper,
          [this](int i) { choices_.shopper = static_cast<std::size_t>(i); });
  addList(tr("&Language"), titlesOf(languages),
          static_cast<std::size_t>(languages.indexOf(QString::fromStdString(choices_.locale))),
          [this, languages](int i) { choices_.locale = languages[i].toStdString(); });
  addList(tr("&Appearance"), {tr("Light"), tr("Dark")},
          static_cast<std::size_t>(choices_.appearance),
          [this](int i) { choices_.appearance = static_cast<graphics::Appearance>(i); });
  addList(tr("&Text size"), textSizes(), static_cast<std::size_t>(choices_.textSize),
          [this](int i) { choices_.textSize = static_cast<swiftui::ContentSizeCategory>(i); });
  addList(tr("&Direction"), {tr("The language's"), tr("Left to right"), tr("Right to left")},
          choices_.direction ? 1 + static_cast<std::size_t>(*choices_.direction) : 0,
          [this](int i) {
            choices_.direction.reset();
            if (i > 0) choices_.direction = static_cast<LayoutDirection>(i - 1);
          });
  addWidth();
  line_->setWordWrap(true);
  line_->setTextFormat(Qt::PlainText);
  line_->setAlignment(Qt::AlignLeading | Qt::AlignTop);
  line_->setMinimumHeight(4 * fontMetrics().lineSpacing());
  form_->addRow(line_);
}

void PreviewControls::addList(const QString& caption, const QStringList& titles,
                              std::size_t current, std::function<void(int)> choose) {
  auto* list = new QComboBox;
  list->addItems(titles);
  list->setCurrentIndex(static_cast<int>(current));
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
  points->setValue(choices_.width);
  slide->setValue(choices_.width);
  connect(slide, &QSlider::valueChanged, points, &QSpinBox::setValue);
  connect(points, &QSpinBox::valueChanged, slide, &QSlider::setValue);
  connect(points, &QSpinBox::valueChanged, this, [this](int width) {
    choices_.width = width;
    emit chosen();
  });
  form_->addRow(tr("W&idth"), points);
  form_->addRow(slide);
}

void PreviewControls::say(const QString& line) { line_->setText(line); }

void PreviewControls::closeEvent(QCloseEvent* event) {
  QWidget::closeEvent(event);
  emit closed();
}

}  // namespace quorix::tool
