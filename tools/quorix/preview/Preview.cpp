#include "tools/quorix/preview/Preview.h"

#include <QApplication>
#include <QDir>
#include <QFileInfo>
#include <QProcess>
#include <QSaveFile>
#include <algorithm>
#include <cstdio>
#include <vector>

#include "QuorixWidgets/localization/ResourceBundle.h"
#include "QuorixWidgets/localization/Strings.h"
#include "platform/foundation/StringTable.h"
#include "platform/foundation/URLSession.h"
#include "tools/quorix/Files.h"
#include "tools/quorix/Translations.h"

#ifdef Q_OS_UNIX
#include <unistd.h>
#endif

namespace quorix::tool {
namespace {

constexpr const char* kPlaces = "QUORIX_PREVIEW_PLACES";  // window positions, kept over a restart

QStringList watched(const PreviewChoices& choices) {
  QStringList roots;
  for (const auto& root : {choices.translations, choices.resources}) {
    if (root) roots.append(QFileInfo(QString::fromStdString(*root)).absoluteFilePath());
  }
  return roots;
}

QStringList languages() {
  QStringList codes;
  for (const std::string& folder : libraryBundle()->folders("")) {
    if (folder.ends_with(".lproj")) codes.append(QString::fromStdString(folder).chopped(6));
  }
  return codes;
}

/// The current text of the file.
std::optional<std::string> textOf(const std::optional<std::string>& file) {
  auto bytes = file ? readInputFile(*file) : Failure::refused("");
  auto* text = std::get_if<std::string>(&bytes);
  return text ? std::optional(std::move(*text)) : std::nullopt;
}

/// The string tables in `folder`.
QStringList tables(const QString& folder) {
  QStringList files;
  const QDir root(folder);
  for (const QString& language : root.entryList({QStringLiteral("*.lproj")}, QDir::Dirs)) {
    const QString file = root.filePath(language + QStringLiteral("/Localizable.strings"));
    if (QFileInfo::exists(file)) files.append(file);
  }
  return files;
}

/// The problems in the string table `file`; empty without any.
std::string findings(const std::string& file) {
  const auto bytes = readInputFile(file);
  if (const auto* failure = std::get_if<Failure>(&bytes)) return failure->message;
  const auto reading = foundation::readStringsFile(std::get<std::string>(bytes));
  if (const auto* error = std::get_if<foundation::Error>(&reading)) return error->description;
  const auto found = problems(std::get<foundation::StringTable>(reading));
  return found.empty() ? "" : '"' + found.front().key + "\" " + found.front().what;
}

std::string findingsInTranslations(const std::string& file) {
  const auto document = readTranslations(file);
  if (const auto* failure = std::get_if<Failure>(&document)) return failure->message;
  return Oversights::in(std::get<std::string>(document)).line().value_or("");
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
    : controls_(choices, languages()), files_(watched(choices)) {
  translations_ = foundation::URLSession::shared().registerProtocol(
      [file = choices.translations](const foundation::URL&) {
        return serviceAnswer(textOf(file));
      });
  pictureDue_.setSingleShot(true);
  pictureDue_.setInterval(50);  // milliseconds
  connect(&controls_, &PreviewControls::chosen, this, &Preview::refresh);
  connect(&controls_, &PreviewControls::closed, qApp, &QApplication::quit);
  connect(&screen_, &PreviewScreen::closed, qApp, &QApplication::quit);
  connect(&files_, &FileWatch::changed, this, &Preview::filesChanged);
  connect(&pictureDue_, &QTimer::timeout, this, &Preview::writePicture);
  screen_.installEventFilter(this);
}

void Preview::open() {
  controls_.show();
  screen_.show(controls_.choices());
  const auto places = qEnvironmentVariable(kPlaces).split(QLatin1Char(' '));
  if (places.size() == 4) {
    controls_.move(places[0].toInt(), places[1].toInt());
    screen_.move(places[2].toInt(), places[3].toInt());
  } else {
    controls_.move(40, 40);
    screen_.move(40 + controls_.width() + 24, 40);
  }
  QStringList files = watched(controls_.choices());
  if (controls_.choices().resources) files.append(tables(files.last()));
  for (const QString& file : std::as_const(files)) {
    if (const QString found = remark(file); !found.isEmpty()) controls_.say(found);
  }
}

bool Preview::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() == QEvent::UpdateRequest && controls_.choices().out) pictureDue_.start();
  return QObject::eventFilter(watched, event);
}

void Preview::refresh() {
  PreviewChoices choices = controls_.choices();
  choices.sheet = screen_.hasSheet();
  screen_.show(choices);
  const bool scales = choices.regularFont || choices.semiBoldFont;
  const bool usual = choices.textSize == swiftui::ContentSizeCategory::large;
  controls_.say(scales || usual ? QString()
                                : tr("The library's own faces keep their size; give "
                                     "--regular-font and --semi-bold-font to see yours follow."));
}

void Preview::filesChanged(const QStringList& files) {
  const QString translations =
      QFileInfo(QString::fromStdString(controls_.choices().translations.value_or("")))
          .absoluteFilePath();
  const bool textsOnly = std::ranges::all_of(
      files, [&](const QString& file) { return file == translations || isReadAgain(file); });
  if (!textsOnly) return startAnew();
  refresh();
  const QString found = remark(files.front());
  controls_.say(found.isEmpty() ? tr("Read %1.").arg(titleOf(files.front())) : found);
}

/// The problems in `file` for its author; empty without any.
QString Preview::remark(const QString& file) const {
  std::string found;
  if (file.endsWith(QLatin1String(".strings"))) found = findings(file.toStdString());
  if (file.endsWith(QLatin1String(".json"))) found = findingsInTranslations(file.toStdString());
  if (found.empty()) return {};
  const QString line = titleOf(file) + QStringLiteral(": ") + QString::fromStdString(found);
  std::fprintf(stderr, "quorix: preview: note: %s\n", qPrintable(line));
  return line;
}

void Preview::startAnew() {
  PreviewChoices choices = controls_.choices();
  choices.sheet = screen_.hasSheet();
  const QPoint controls = controls_.pos(), screen = screen_.pos();
  qputenv(kPlaces, QStringLiteral("%1 %2 %3 %4")
                       .arg(controls.x())
                       .arg(controls.y())
                       .arg(screen.x())
                       .arg(screen.y())
                       .toLatin1());
  const QString program = QCoreApplication::applicationFilePath();
  const QStringList words = QStringList(QStringLiteral("preview")) + choices.toWords();
#ifdef Q_OS_UNIX
  // Replaces the process, so that the terminal that started the preview can still end it.
  std::vector<QByteArray> bytes{program.toLocal8Bit()};
  for (const QString& word : words) bytes.push_back(word.toLocal8Bit());
  std::vector<char*> argv;
  for (QByteArray& word : bytes) argv.push_back(word.data());
  argv.push_back(nullptr);
  execv(argv.front(), argv.data());
#endif
  QProcess::startDetached(program, words);
  QCoreApplication::quit();
}

void Preview::writePicture() {
  const QImage picture = screen_.picture().toImage();
  if (picture == written_) return;
  written_ = picture;
  QSaveFile file(QString::fromStdString(*controls_.choices().out));  // whole or not at all
  const bool saved = file.open(QIODevice::WriteOnly) && picture.save(&file, "PNG") && file.commit();
  if (!saved) controls_.say(tr("Can't write %1.").arg(file.fileName()));
}

}  // namespace quorix::tool
