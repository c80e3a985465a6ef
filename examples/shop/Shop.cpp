#include "examples/shop/Shop.h"

#include <QEvent>
#include <QGuiApplication>
#include <QPalette>
#include <QRegularExpression>
#include <chrono>

namespace quorix::examples {
namespace {

template <class Thing>
QStringList namesOf(const std::vector<Thing>& things) {
  QStringList names;
  for (const Thing& thing : things) names.append(thing.name);
  return names;
}

bool desktopIsDark() {
  const QPalette palette = QGuiApplication::palette();
  return palette.color(QPalette::Window).lightness() <
         palette.color(QPalette::WindowText).lightness();
}

}  // namespace

Shop::Shop(QObject* parent) : QObject(parent), words_(ShopLanguage::all().front().code) {
  qGuiApp->installEventFilter(this);
  noteRead_.setSingleShot(true);
  noteRead_.setInterval(std::chrono::seconds(8));
  connect(&noteRead_, &QTimer::timeout, this, [this] {
    note_.clear();
    emit changed();
  });
}

QStringList Shop::shoppers() { return namesOf(Shopper::all()); }
QStringList Shop::languages() { return namesOf(ShopLanguage::all()); }
QStringList Shop::appearances() { return {"As the desktop", "Light", "Dark"}; }
QStringList Shop::faces() { return namesOf(TextFace::all()); }
QStringList Shop::sizes() { return {"XS", "S", "M", "L", "XL"}; }

void Shop::choose(const Choices& choices) {
  if (choices_ == choices) return;
  const bool speaksAnother = choices_.language != choices.language;
  choices_ = choices;
  if (speaksAnother) words_ = ShopWords(locale());
  emit changed();
}

void Shop::choose(int index, int Choices::*choice) {
  Choices choices = choices_;
  choices.*choice = index;
  choose(choices);
}

bool Shop::dark() const {
  return choices_.appearance == 0 ? desktopIsDark() : choices_.appearance == 2;
}

void Shop::setMoving(bool moving) {
  moving_ = moving;
  emit changed();
}

void Shop::chooseSize(const QString& size) {
  if (size_ == size) return;
  size_ = size;
  emit changed();
}

void Shop::openBag(bool open) {
  if (bagOpen_ == open) return;
  bagOpen_ = open;
  emit changed();
}

void Shop::leaveFor(const QString& address) {
  // An address has no spaces, so allow line breaks after each of its parts.
  QString parts = address;
  parts.replace(QRegularExpression(QStringLiteral("([/?&])(?=[^/])")), QStringLiteral("\\1\u200b"));
  note_ = QStringLiteral("Opened outside the app:\n%1\nThis is a demo, and nothing answers there.")
              .arg(parts);
  noteRead_.start();
  emit changed();
}

QVariantList Shop::bagLines() const {
  QVariantList list;
  for (const Bag::Line& line : bag_.lines()) {
    list.append(QVariantMap{
        {"size", line.size}, {"count", line.count}, {"price", shopper().priceOf(line.count)}});
  }
  return list;
}

void Shop::addToBag() {
  bag_.add(size_);
  emit changed();
  emit noticed(words_["added"].arg(words_["product"], size_));
}

void Shop::takeOut(const QString& size) {
  bag_.remove(size);
  emit changed();
}

void Shop::fillBag(const Bag& bag) {
  bag_ = bag;
  emit changed();
}

bool Shop::eventFilter(QObject* watched, QEvent* event) {
  if (watched == qGuiApp && event->type() == QEvent::ApplicationPaletteChange) emit changed();
  return QObject::eventFilter(watched, event);
}

}  // namespace quorix::examples
