#pragma once

#include <QColor>
#include <QObject>

namespace quorix::examples {

/// The shop's colors for one appearance, for both toolkits.
struct ShopColors {
  Q_GADGET
  Q_PROPERTY(QColor page MEMBER page)
  Q_PROPERTY(QColor stage MEMBER stage)
  Q_PROPERTY(QColor ink MEMBER ink)
  Q_PROPERTY(QColor quiet MEMBER quiet)
  Q_PROPERTY(QColor hairline MEMBER hairline)
  Q_PROPERTY(QColor accent MEMBER accent)
  Q_PROPERTY(QColor accentInk MEMBER accentInk)
  Q_PROPERTY(QColor notice MEMBER notice)
  Q_PROPERTY(QColor noticeInk MEMBER noticeInk)

 public:
  QColor page;
  QColor stage;  ///< background of the goods
  QColor ink;
  QColor quiet;  ///< secondary text
  QColor hairline;
  QColor accent;
  QColor accentInk;
  QColor notice;
  QColor noticeInk;

  static ShopColors light() {
    return {{"#ffffff"}, {"#f1ede6"}, {"#1a1a1c"}, {"#636366"}, {"#e4e4e8"},
            {"#1f4a3d"}, {"#ffffff"}, {"#26262a"}, {"#ffffff"}};
  }
  static ShopColors dark() {
    return {{"#0b0b0d"}, {"#221f1b"}, {"#f5f5f7"}, {"#aeaeb2"}, {"#36363a"},
            {"#a9d5c0"}, {"#10241d"}, {"#f5f5f7"}, {"#1a1a1c"}};
  }
};

}  // namespace quorix::examples
