#pragma once

#include <QFormLayout>
#include <QLabel>
#include <QWidget>
#include <functional>

#include "tools/quorix/preview/PreviewChoices.h"

namespace quorix::tool {

/// What a preview lets its user choose, and a line on what happened last.
class PreviewControls : public QWidget {
  Q_OBJECT

 public:
  /// `languages` are the codes that have texts.
  PreviewControls(PreviewChoices choices, const QStringList& languages);

  const PreviewChoices& choices() const { return choices_; }

  void say(const QString& line);

 signals:
  void chosen();
  void closed();

 protected:
  void closeEvent(QCloseEvent* event) override;

 private:
  /// A list whose first entry is number 0. `choose` is told of the number that was picked.
  void addList(const QString& caption, const QStringList& titles, std::size_t current,
               std::function<void(int)> choose);
  void addWidth();

  PreviewChoices choices_;
  QFormLayout* form_;
  QLabel* line_;
};

}  // namespace quorix::tool
