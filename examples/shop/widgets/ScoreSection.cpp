#include "examples/shop/widgets/ScoreSection.h"

#include <QVBoxLayout>

#include "examples/shop/Shop.h"
#include "examples/shop/widgets/Hairline.h"
#include "examples/shop/widgets/WidgetPanel.h"

namespace quorix::examples {

ScoreSection::ScoreSection(Shop& shop, QWidget* parent) : QWidget(parent) {
  auto* row = new WidgetPanel(WidgetPanel::Kind::scoreRow, shop, this);
  auto* lines = new QVBoxLayout(this);
  lines->setContentsMargins(0, 18, 0, 0);
  lines->setSpacing(16);
  lines->addWidget(new Hairline(this));
  lines->addWidget(row);
  lines->addWidget(new Hairline(this));
  const auto fit = [this, row] { setVisible(!row->isEmpty()); };
  connect(&shop, &Shop::changed, this, fit);  // after the row, which came first
  fit();
}

}  // namespace quorix::examples
