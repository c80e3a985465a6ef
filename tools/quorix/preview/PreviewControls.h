#pragma once

#include <QFormLayout>
#include <QLabel>
#include <QWidget>
#include <functional>

#include "tools/quorix/preview/PreviewChoices.h"

namespace quorix::tool {

/// The controls of a preview, and a status line.
class PreviewControls : public QWidget {
  Q_OBJECT

 public:
  /// `languages`: the codes of languages with texts.
  PreviewControls(PreviewChoices choices, const QStringList& languages);

  const PreviewChoices& choices() const { return choices_; }

  void say(const QString& line) { line_->setText(line); }

 signals:
  void chosen();

 private:
  /// Adds a list. `choose` is called with the index of the chosen entry.
  void addList(const QString& caption, const QStringList& titles, int current,
               std::function<void(int)> choose);
  void addWidth();

  PreviewChoices choices_;
  QFormLayout* form_;
  QLabel* line_;
};

}  // namespace quorix::tool
