#pragma once

#include <QWidget>

namespace quorix::examples {

class Shop;

/// The score row between hairlines, and the room around them. With nothing to show it takes no
/// room at all.
class ScoreSection : public QWidget {
  Q_OBJECT

 public:
  explicit ScoreSection(Shop& shop, QWidget* parent = nullptr);
};

}  // namespace quorix::examples
