#include "examples/shop/widgets/ScrollPage.h"

#include <QHBoxLayout>

#include "examples/shop/widgets/OverlayScrollBar.h"

namespace quorix::examples {
namespace {

constexpr int readable = 560;  // pixels
constexpr int margin = 20;

}  // namespace

ScrollPage::ScrollPage(QWidget* parent) : QScrollArea(parent) {
  setFrameShape(QFrame::NoFrame);
  setFocusPolicy(Qt::NoFocus);  // what it holds has the focus, and scrolls into view
  setWidgetResizable(true);
  setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  new OverlayScrollBar(*this);
  auto* body = new QWidget;
  auto* middle = new QWidget(body);
  middle->setMaximumWidth(readable + 2 * margin);
  column_ = new QVBoxLayout(middle);
  column_->setContentsMargins(margin, 18, margin, 24);
  column_->setSpacing(0);
  auto* centered = new QHBoxLayout;
  centered->addStretch(1);
  centered->addWidget(middle, 1000);
  centered->addStretch(1);
  page_ = new QVBoxLayout(body);
  page_->setContentsMargins(0, 0, 0, 0);
  page_->setSpacing(0);
  page_->addLayout(centered);
  page_->addStretch(1);
  setWidget(body);
}

void ScrollPage::setBanner(QWidget* widget) {
  page_->insertWidget(0, widget);
  widget->lower();  // to be read first
}

}  // namespace quorix::examples
