#pragma once

#include <QObject>
#include <QStringList>
#include <QTimer>
#include <QVariantList>
#include <QVariantMap>

#include "examples/shop/Bag.h"
#include "examples/shop/Choices.h"
#include "examples/shop/ShopColors.h"
#include "examples/shop/ShopWords.h"
#include "examples/shop/Shopper.h"

namespace quorix::examples {

/// The shop's model: the demo bar's lists and settings, the values that follow from them, the open
/// page and the bag. All user interfaces show it and write to it, so two of them always agree. Main
/// thread; needs the application object.
class Shop : public QObject {
  Q_OBJECT
  Q_PROPERTY(QStringList shoppers READ shoppers CONSTANT)
  Q_PROPERTY(QStringList languages READ languages CONSTANT)
  Q_PROPERTY(QStringList appearances READ appearances CONSTANT)
  Q_PROPERTY(QStringList faces READ faces CONSTANT)
  Q_PROPERTY(QStringList sizes READ sizes CONSTANT)

  Q_PROPERTY(int shopper READ shopperIndex WRITE chooseShopper NOTIFY changed)
  Q_PROPERTY(int language READ languageIndex WRITE chooseLanguage NOTIFY changed)
  Q_PROPERTY(int appearance READ appearanceIndex WRITE chooseAppearance NOTIFY changed)
  Q_PROPERTY(int face READ faceIndex WRITE chooseFace NOTIFY changed)

  // Values that follow from the settings.
  Q_PROPERTY(QString clientId READ clientId CONSTANT)
  Q_PROPERTY(QString token READ token NOTIFY changed)
  Q_PROPERTY(QString locale READ locale NOTIFY changed)
  Q_PROPERTY(bool rightToLeft READ rightToLeft NOTIFY changed)
  Q_PROPERTY(QString regularFont READ regularFont NOTIFY changed)
  Q_PROPERTY(QString semiBoldFont READ semiBoldFont NOTIFY changed)
  Q_PROPERTY(int textSize READ textSize NOTIFY changed)
  Q_PROPERTY(bool dark READ dark NOTIFY changed)
  Q_PROPERTY(quorix::examples::ShopColors colors READ colors NOTIFY changed)
  Q_PROPERTY(QVariantMap words READ wordMap NOTIFY changed)
  Q_PROPERTY(bool moving READ moving NOTIFY changed)

  Q_PROPERTY(QString size READ size WRITE chooseSize NOTIFY changed)
  Q_PROPERTY(bool bagOpen READ bagOpen WRITE openBag NOTIFY changed)
  /// A message of the demo itself, shown for a while.
  Q_PROPERTY(QString note READ note NOTIFY changed)
  Q_PROPERTY(int bagCount READ bagCount NOTIFY changed)
  /// A list of { size, count, price }.
  Q_PROPERTY(QVariantList bagLines READ bagLines NOTIFY changed)
  Q_PROPERTY(QString price READ price NOTIFY changed)
  Q_PROPERTY(QString total READ total NOTIFY changed)

 public:
  explicit Shop(QObject* parent = nullptr);

  static QStringList shoppers();
  static QStringList languages();
  static QStringList appearances();
  static QStringList faces();
  static QStringList sizes();

  const Choices& choices() const { return choices_; }
  void choose(const Choices& choices);
  int shopperIndex() const { return choices_.shopper; }
  int languageIndex() const { return choices_.language; }
  int appearanceIndex() const { return choices_.appearance; }
  int faceIndex() const { return choices_.face; }
  void chooseShopper(int index) { choose(index, &Choices::shopper); }
  void chooseLanguage(int index) { choose(index, &Choices::language); }
  void chooseAppearance(int index) { choose(index, &Choices::appearance); }
  void chooseFace(int index) { choose(index, &Choices::face); }

  static QString clientId() { return QStringLiteral("fjord-and-thread"); }
  const Shopper& shopper() const { return Shopper::all().at(std::size_t(choices_.shopper)); }
  const ShopLanguage& language() const {
    return ShopLanguage::all().at(std::size_t(choices_.language));
  }
  const TextFace& face() const { return TextFace::all().at(std::size_t(choices_.face)); }
  QString token() const { return QString::fromStdString(shopper().token); }
  QString locale() const { return language().code; }
  bool rightToLeft() const { return language().rightToLeft; }
  QString regularFont() const { return face().regular; }
  QString semiBoldFont() const { return face().semiBold; }
  /// A value of QML's `ScoreWidget.TextSize`.
  int textSize() const { return face().textSize ? static_cast<int>(*face().textSize) : -1; }
  bool dark() const;
  ShopColors colors() const { return dark() ? ShopColors::dark() : ShopColors::light(); }
  const ShopWords& words() const { return words_; }
  QVariantMap wordMap() const { return words_.all(); }

  /// Whether animations run. False for still pictures.
  bool moving() const { return moving_; }
  void setMoving(bool moving);

  QString size() const { return size_; }
  void chooseSize(const QString& size);
  bool bagOpen() const { return bagOpen_; }
  void openBag(bool open);

  QString note() const { return note_; }
  /// Shows a note that `address` was opened outside the app. The demo's hosts do not exist.
  void leaveFor(const QString& address);

  const Bag& bag() const { return bag_; }
  int bagCount() const { return bag_.count(); }
  QVariantList bagLines() const;
  QString price() const { return shopper().priceOf(1); }
  QString total() const { return shopper().priceOf(bag_.count()); }
  /// Puts a piece of the chosen size into the bag and confirms it.
  Q_INVOKABLE void addToBag();
  Q_INVOKABLE void takeOut(const QString& size);
  /// Fills the bag without confirmation.
  void fillBag(const Bag& bag);

 signals:
  void changed();
  /// Requests to show a confirmation to the shopper.
  void noticed(const QString& words);

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void choose(int index, int Choices::*choice);

  Choices choices_;
  ShopWords words_;
  QString size_ = QStringLiteral("M");
  bool moving_ = true;
  bool bagOpen_ = false;
  QString note_;
  QTimer noteRead_;
  Bag bag_;
};

}  // namespace quorix::examples
