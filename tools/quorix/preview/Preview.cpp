#include "tools/quorix/preview/Preview.h"

#include <QApplication>
#include <QFileInfo>
#include <QProcess>
#include <algorithm>
#include <cstdio>
#include <tuple>
#include <vector>

#include "QuorixWidgets/localization/ResourceBundle.h"
#include "platform/foundation/URLSession.h"
#include "tools/quorix/Files.h"
#include "tools/quorix/Texts.h"
#include "tools/quorix/gallery/Pictures.h"

#ifdef Q_OS_UNIX
#include <unistd.h>
#endif

namespace quorix::tool {
namespace {

using foundation::URLResponse;
using foundation::URLSession;

// The windows' positions, kept over a restart.
constexpr const char* kControlsPlace = "QUORIX_PREVIEW_CONTROLS";
constexpr const char* kScreenPlace = "QUORIX_PREVIEW_SCREEN";

QString pathOf(const std::optional<std::string>& file) {
  return file ? QFileInfo(QString::fromStdString(*file)).absoluteFilePath() : QString();
}

QStringList languages() {
  QStringList codes;
  for (const std::string& folder : libraryBundle()->folders("")) {
    if (folder.ends_with(".lproj")) codes.append(QString::fromStdString(folder).chopped(6));
  }
  return codes;
}

/// The first mistake in the string table `file`; empty without any.
std::string firstMistake(const std::string& file) {
  const auto bytes = readInputFile(file);
  if (const auto* failure = std::get_if<Failure>(&bytes)) return failure->message;
  const auto mistakes = mistakesInTable(std::get<std::string>(bytes));
  return mistakes.empty() ? "" : mistakes.front();
}

/// The mistakes in the translation table `file`; empty without any.
std::string allMistakes(const std::string& file) {
  const auto read = Translations::read(file);
  const auto* failure = std::get_if<Failure>(&read);
  return failure ? failure->message : std::get<Translations>(read).mistakes();
}

/// The name of `file`, with its language if it is a table of one: "de.lproj/Localizable.strings".
QString titleOf(const QString& file) {
  const QFileInfo info(file);
  const QString folder = QFileInfo(info.path()).fileName();
  return folder.endsWith(QLatin1String(".lproj")) ? folder + QLatin1Char('/') + info.fileName()
                                                  : info.fileName();
}

/// Whether a new widget shows a change in `file`. Otherwise the process must restart.
bool isReadAgain(const QString& file) {
  return file.endsWith(QLatin1String(".strings")) || file.endsWith(QLatin1String(".xib"));
}

}  // namespace

Preview::Preview(const PreviewChoices& choices)
    : controls_(choices, languages()),
      files_({pathOf(choices.translations), pathOf(choices.resources)}) {
  if (const auto& file = choices.translations) {
    translations_ = URLSession::shared().registerProtocol([file](const auto&) {
      auto bytes = readInputFile(*file);
      auto* text = std::get_if<std::string>(&bytes);
      return text ? std::optional(URLResponse{{}, std::move(*text), 200}) : std::nullopt;
    });
  }
  pictureDue_.setSingleShot(true);
  pictureDue_.setInterval(50);  // milliseconds
  connect(&controls_, &PreviewControls::chosen, this, &Preview::refresh);
  connect(&files_, &FileWatch::changed, this, &Preview::filesChanged);
  connect(&pictureDue_, &QTimer::timeout, this, &Preview::writePicture);
  screen_.installEventFilter(this);
  controls_.installEventFilter(this);
}

void Preview::open() {
  controls_.show();
  screen_.show(controls_.choices());
  controls_.move(40, 40);
  screen_.move(40 + controls_.width() + 24, 40);
  // After a restart, where they were.
  controls_.restoreGeometry(QByteArray::fromBase64(qgetenv(kControlsPlace)));
  screen_.restoreGeometry(QByteArray::fromBase64(qgetenv(kScreenPlace)));
  for (const QString& file : files_.files()) {
    if (const QString found = remark(file); !found.isEmpty()) controls_.say(found);
  }
}

bool Preview::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() == QEvent::Close) QApplication::quit();
  const bool repaints = watched == &screen_ && event->type() == QEvent::UpdateRequest;
  if (repaints && controls_.choices().out) pictureDue_.start();
  return QObject::eventFilter(watched, event);
}

void Preview::refresh() {
  PreviewChoices choices = controls_.choices();
  choices.sheet = screen_.hasSheet();
  std::tie(choices.regularFont, choices.semiBoldFont) = choices.givenFaces;
  screen_.show(choices);
  const bool scales = choices.regularFont || choices.semiBoldFont;
  const bool usual = choices.environment().textSize == swiftui::ContentSizeCategory::large;
  controls_.say(scales || usual ? QString()
                                : tr("The library's own faces keep their size; give "
                                     "--regular-font and --semi-bold-font to see yours follow."));
}

void Preview::filesChanged(const QStringList& files) {
  const QString translations = pathOf(controls_.choices().translations);
  const bool textsOnly = std::ranges::all_of(
      files, [&](const QString& file) { return file == translations || isReadAgain(file); });
  if (!textsOnly) return startAnew();
  refresh();
  const QString found = remark(files.front());
  controls_.say(found.isEmpty() ? tr("Read %1.").arg(titleOf(files.front())) : found);
}

/// The problems in `file` for its author; empty without any.
QString Preview::remark(const QString& file) const {
  const bool isTable = file.endsWith(QLatin1String("/Localizable.strings"));
  if (!isTable && file != pathOf(controls_.choices().translations)) return {};
  const std::string found =
      isTable ? firstMistake(file.toStdString()) : allMistakes(file.toStdString());
  if (found.empty()) return {};
  const QString line = titleOf(file) + QStringLiteral(": ") + QString::fromStdString(found);
  std::fprintf(stderr, "quorix: preview: note: %s\n", qPrintable(line));
  return line;
}

void Preview::startAnew() {
  PreviewChoices choices = controls_.choices();
  choices.sheet = screen_.hasSheet();
  qputenv(kControlsPlace, controls_.saveGeometry().toBase64());
  qputenv(kScreenPlace, screen_.saveGeometry().toBase64());
  std::vector<std::string> words = wordsOf(choices.options());
  words.insert(words.begin(), {QCoreApplication::applicationFilePath().toStdString(), "preview"});
  if (choices.token) words.insert(words.end(), {"--", choices.shoppers.back().token});
#ifdef Q_OS_UNIX
  // Replaces the process, so that the terminal that started the preview can still end it.
  std::vector<char*> argv;
  for (std::string& word : words) argv.push_back(word.data());
  argv.push_back(nullptr);
  execv(argv.front(), argv.data());
#else
  QStringList arguments;
  for (const std::string& word : words) arguments.append(QString::fromStdString(word));
  QProcess::startDetached(arguments.takeFirst(), arguments);
#endif
  QCoreApplication::quit();
}

void Preview::writePicture() {
  const QImage picture = screen_.grab().toImage();
  if (picture == written_) return;
  written_ = picture;
  const auto failure = writeFile(*controls_.choices().out, gallery::png(picture));
  if (failure) controls_.say(QString::fromStdString(failure->message));
}

}  // namespace quorix::tool
