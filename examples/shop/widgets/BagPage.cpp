#include "examples/shop/widgets/BagPage.h"

#include "examples/shop/Shop.h"
#include "examples/shop/widgets/BagLine.h"
#include "examples/shop/widgets/Hairline.h"
#include "examples/shop/widgets/Label.h"
#include "examples/shop/widgets/WidgetPanel.h"

namespace quorix::examples {

BagPage::BagPage(Shop& shop, QWidget* parent)
    : ScrollPage(parent),
      shop_(shop),
      title_(new Label(Label::Look::title, this)),
      empty_(new Label(Label::Look::quiet, this)),
      lines_(new QWidget(this)),
      sum_(new QWidget(this)),
      total_(new Label(Label::Look::strong, sum_)),
      amount_(new Label(Label::Look::strong, sum_)),
      returns_(new Label(Label::Look::heading, this)),
      returnsText_(new Label(Label::Look::quiet, this)) {
  auto* lines = new QVBoxLayout(lines_);
  lines->setContentsMargins(0, 0, 0, 0);
  lines->setSpacing(0);
  auto* sum = new QHBoxLayout(sum_);
  sum->setContentsMargins(0, 16, 0, 16);
  amount_->setWordWrap(false);
  sum->addWidget(total_, 1);
  sum->addWidget(amount_);
  empty_->setContentsMargins(0, 6, 0, 16);

  column().addSpacing(4);
  column().addWidget(title_);
  column().addSpacing(6);
  column().addWidget(empty_);
  column().addWidget(lines_);
  column().addWidget(sum_);
  column().addWidget(new Hairline(this));
  column().addSpacing(22);
  column().addWidget(returns_);
  column().addSpacing(6);
  column().addWidget(returnsText_);
  column().addSpacing(14);
  column().addWidget(new WidgetPanel(WidgetPanel::Kind::uiInfo, shop, this));

  connect(&shop, &Shop::changed, this, &BagPage::follow);
  follow();
}

void BagPage::follow() {
  title_->setText(shop_.words()["bag"]);
  empty_->setText(shop_.words()["bagEmpty"]);
  total_->setText(shop_.words()["total"]);
  amount_->setText(shop_.total());
  returns_->setText(shop_.words()["returns"]);
  returnsText_->setText(shop_.words()["returnsText"]);
  followBag();
}

void BagPage::followBag() {
  // A line's own button may have led here.
  for (auto* line : lines_->findChildren<BagLine*>()) {
    lines_->layout()->removeWidget(line);
    line->hide();
    line->deleteLater();
  }
  for (const Bag::Line& line : shop_.bag().lines()) {
    lines_->layout()->addWidget(new BagLine(line, shop_, lines_));
  }
  const bool holds = shop_.bagCount() > 0;
  empty_->setVisible(!holds);
  lines_->setVisible(holds);
  sum_->setVisible(holds);
}

}  // namespace quorix::examples
