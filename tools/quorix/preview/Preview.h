#pragma once

#include <QTimer>
#include <memory>

#include "tools/quorix/preview/FileWatch.h"
#include "tools/quorix/preview/PreviewControls.h"
#include "tools/quorix/preview/PreviewScreen.h"

namespace quorix::tool {

/// A widget on a screen, with controls in a window beside it and watched files. Changed texts are
/// read again. A process reads other resources only once, so the preview restarts for them and
/// restores its look. Main thread.
class Preview : public QObject {
  Q_OBJECT

 public:
  explicit Preview(const PreviewChoices& choices);

  void open();

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void refresh();
  void filesChanged(const QStringList& files);
  QString remark(const QString& file) const;
  void startAnew();
  void writePicture();

  PreviewControls controls_;
  PreviewScreen screen_;
  FileWatch files_;
  std::shared_ptr<void> translations_;  ///< answers in place of the service
  QTimer pictureDue_;
  QImage written_;
};

}  // namespace quorix::tool
