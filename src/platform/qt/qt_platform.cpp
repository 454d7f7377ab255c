#include "platform/qt/qt_platform.h"

#include <algorithm>

#include <QApplication>
#include <QDateTime>
#include <QElapsedTimer>
#include <QDesktopServices>
#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QGuiApplication>
#include <QLocale>
#include <QMessageBox>
#include <QPainter>
#include <QPrintDialog>
#include <QPrinter>
#include <QProcess>
#include <QRegularExpression>
#include <QCursor>
#include <QScreen>
#include <QStandardPaths>
#include <QUrl>
#include <QWhatsThis>

#include "common/failure.h"
#include "platform/qt/pictures.h"

namespace qh {
namespace {

QString qs(const std::string& text) { return QString::fromUtf8(text.data(), qsizetype(text.size())); }
std::string str(const QString& text) { return text.toStdString(); }

QDate qtDate(Date date) {
    const Ymd ymd = ymdOf(date);
    return QDate(ymd.year, ymd.month, ymd.day);
}

// "HTML Files (*.html)" with pattern "*.html" as Qt's "HTML Files (*.html)". The pattern
// in the parentheses is what Qt filters by, so it is always the given one; "*.*" means
// every file, also those without an extension.
QString qtFilter(const FileFilter& filter) {
    QString name = qs(filter.name).trimmed();
    name.remove(QRegularExpression(QStringLiteral("\\s*\\([^()]*\\)\\s*$")));
    QString patterns = qs(filter.pattern).replace(';', ' ').trimmed();
    if (patterns.isEmpty() || patterns == QStringLiteral("*.*")) patterns = QStringLiteral("*");
    return QStringLiteral("%1 (%2)").arg(name.isEmpty() ? patterns : name, patterns);
}

}  // namespace

std::string QtEnvironment::get(const std::string& name) const { return qgetenv(name.c_str()).toStdString(); }

Moment QtClock::now() const {
    const QDateTime now = QDateTime::currentDateTime();
    const QDate date = now.date();
    return {dateFromYmd(date.year(), date.month(), date.day()), now.time().msecsSinceStartOfDay() / 1000};
}

QtLocale::QtLocale() : QtLocale(QLocale::system()) {}
QtLocale::QtLocale(const QLocale& locale)
    : locale_(std::make_unique<QLocale>(locale)), collation_(str(locale.name())) {}

std::string QtLocale::longDate(Date date) const { return str(locale_->toString(qtDate(date), QLocale::LongFormat)); }

std::string QtLocale::mediumDate(Date date) const {
    return str(locale_->toString(qtDate(date), QStringLiteral("dd-MMM-yy")));
}

std::string QtLocale::shortDate(Date date) const {
    // The planner shows the year in full where the host's short form has two digits.
    QString format = locale_->dateFormat(QLocale::ShortFormat);
    if (!format.contains(QStringLiteral("yyyy"))) format.replace(QStringLiteral("yy"), QStringLiteral("yyyy"));
    return str(locale_->toString(qtDate(date), format));
}

std::string QtLocale::mediumTime(int secondsOfDay) const {
    const QTime time = QTime(0, 0).addSecs(((secondsOfDay % 86400) + 86400) % 86400);
    return str(locale_->toString(time, QStringLiteral("hh:mm AP")));
}

std::string QtLocale::monthName(int month) const { return str(locale_->monthName(month, QLocale::LongFormat)); }

std::string QtLocale::shortMonthName(int month) const {
    return str(locale_->monthName(month, QLocale::ShortFormat));
}

std::string QtLocale::dayName(int weekday) const {
    // The planner counts from Sunday = 1, Qt from Monday = 1.
    const int qtDay = weekday == 1 ? 7 : weekday - 1;
    return str(locale_->dayName(qtDay, QLocale::LongFormat));
}

void QtLocale::appendSortKey(std::string_view text, std::string& key) const { collation_.appendSortKey(text, key); }

void QtLocale::appendSortKeys(const std::vector<std::string_view>& texts, std::string& keys,
                              std::vector<std::size_t>& ends) const {
    collation_.appendSortKeys(texts, keys, ends);
}

MessageAnswer QtMessageBoxes::show(const std::string& text, const std::string& title, MessageButtons buttons,
                                   MessageIcon icon) {
    QMessageBox::Icon qtIcon = QMessageBox::NoIcon;
    switch (icon) {
        case MessageIcon::Information: qtIcon = QMessageBox::Information; break;
        case MessageIcon::Exclamation: qtIcon = QMessageBox::Warning; break;
        case MessageIcon::Critical: qtIcon = QMessageBox::Critical; break;
        case MessageIcon::Question: qtIcon = QMessageBox::Question; break;
        case MessageIcon::None: break;
    }
    QMessageBox::StandardButtons qtButtons = QMessageBox::Ok;
    switch (buttons) {
        case MessageButtons::OK: qtButtons = QMessageBox::Ok; break;
        case MessageButtons::OKCancel: qtButtons = QMessageBox::Ok | QMessageBox::Cancel; break;
        case MessageButtons::YesNo: qtButtons = QMessageBox::Yes | QMessageBox::No; break;
        case MessageButtons::YesNoCancel: qtButtons = QMessageBox::Yes | QMessageBox::No | QMessageBox::Cancel; break;
    }
    QMessageBox box(qtIcon, qs(title), qs(text), qtButtons, QApplication::activeWindow());
    switch (box.exec()) {
        case QMessageBox::Yes: return MessageAnswer::Yes;
        case QMessageBox::No: return MessageAnswer::No;
        case QMessageBox::Cancel: return MessageAnswer::Cancel;
        default: return MessageAnswer::OK;
    }
}

FileDialogAnswer QtDialogs::fileDialog(const FileDialogRequest& request) {
    QStringList filters;
    for (const FileFilter& filter : request.filters) filters.append(qtFilter(filter));
    QFileDialog dialog(QApplication::activeWindow(), qs(request.title));
    dialog.setAcceptMode(request.open ? QFileDialog::AcceptOpen : QFileDialog::AcceptSave);
    dialog.setFileMode(request.open ? QFileDialog::ExistingFile : QFileDialog::AnyFile);
    if (!filters.isEmpty()) dialog.setNameFilters(filters);
    if (!request.defaultExtension.empty()) dialog.setDefaultSuffix(qs(request.defaultExtension));
    dialog.setOption(QFileDialog::DontConfirmOverwrite, !request.askBeforeReplace);
    const QFileInfo start(qs(request.startPath));
    QString directory = qs(request.startDirectory);
    if (directory.isEmpty()) directory = start.isAbsolute() ? start.absolutePath() : QDir::currentPath();
    dialog.setDirectory(directory);
    if (!request.startPath.empty()) dialog.selectFile(start.fileName());

    FileDialogAnswer answer;
    if (dialog.exec() != QDialog::Accepted || dialog.selectedFiles().isEmpty()) return answer;
    const QString chosen = dialog.selectedFiles().first();
    answer.chosen = true;
    answer.fullPath = str(QDir::toNativeSeparators(chosen));
    answer.fileTitle = str(QFileInfo(chosen).fileName());
    return answer;
}

PrinterAnswer QtDialogs::printerDialog() {
    auto printer = std::make_unique<QPrinter>(QPrinter::HighResolution);
    printer->setCopyCount(1);
    QPrintDialog dialog(printer.get(), QApplication::activeWindow());
    PrinterAnswer answer;
    if (dialog.exec() != QDialog::Accepted) return answer;
    answer.chosen = true;
    answer.printerName = str(printer->printerName());
    answer.copies = std::max(1, printer->copyCount());
    choice_.printer = std::move(printer);
    return answer;
}

QtProcesses::QtProcesses(const std::string& lockPath)
    : lock_(qs(lockPath.empty() ? defaultLockPath() : lockPath)) {
    // Age alone never makes the claim stale; a claim whose process is gone does.
    lock_.setStaleLockTime(0);
}

std::string QtProcesses::defaultLockPath() {
    QString folder = qEnvironmentVariable("XDG_RUNTIME_DIR");
    QString name = QStringLiteral("quillhollow.lock");
    if (folder.isEmpty() || !QFileInfo(folder).isDir()) {
        folder = QDir::tempPath();
        const QString user = qEnvironmentVariable("USER", QStringLiteral("user"));
        name = QStringLiteral("quillhollow-%1.lock").arg(user);
    }
    return str(QDir(folder).filePath(name));
}

bool QtProcesses::anotherInstanceRunning() {
    if (!checked_) {
        checked_ = true;
        // Kept for the whole run once taken; the claim goes with the process.
        another_ = !lock_.tryLock(0) && lock_.error() == QLockFile::LockFailedError;
    }
    return another_;
}

std::int32_t QtProcesses::ownProcessId() { return std::int32_t(QCoreApplication::applicationPid()); }

std::int32_t QtProcesses::startCommand(const std::string& commandLine) {
    QStringList arguments = QProcess::splitCommand(qs(commandLine));
    if (arguments.isEmpty()) throw FileFailure("Empty command line");
    const QString program = arguments.takeFirst();
    qint64 pid = 0;
    if (!QProcess::startDetached(program, arguments, QString(), &pid))
        throw FileFailure("Cannot start " + commandLine);
    return std::int32_t(pid);
}

void QtProcesses::openWithDefaultHandler(const std::string& pathOrAddress) {
    const QString target = qs(pathOrAddress);
    const bool address = target.contains(QStringLiteral("://")) || target.startsWith(QStringLiteral("mailto:"));
    if (!QDesktopServices::openUrl(address ? QUrl(target) : QUrl::fromLocalFile(target)))
        throw FileFailure("Cannot open " + pathOrAddress);
}

void QtWindowing::processEvents() {
    renderer_.syncAll();
    QCoreApplication::processEvents();
    // A window just shown (the splash before the long load) is on the screen only once
    // the display has exposed it; wait for that a moment, never long.
    QElapsedTimer waited;
    waited.start();
    while (renderer_.anyShownWindowUnexposed() && waited.elapsed() < 250)
        QCoreApplication::processEvents(QEventLoop::AllEvents, 10);
}

void QtWindowing::paintPending() {
    renderer_.syncAll();
    QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
}

int QtWindowing::screenWidthTwips() const {
    QScreen* screen = QGuiApplication::primaryScreen();
    return screen ? screen->size().width() * 15 : 0;
}

int QtWindowing::screenHeightTwips() const {
    QScreen* screen = QGuiApplication::primaryScreen();
    return screen ? screen->size().height() * 15 : 0;
}

void QtWindowing::showModal(Form& form, Form* owner) {
    if (owner) {
        const Area area = availableArea();
        form.centreOver(*owner, area.left, area.top, area.width, area.height);
    }
    renderer_.showModal(form, owner);
}

Windowing::Area QtWindowing::availableArea() const {
    // The screen the window comes back on is where the pointer is, as a window opens.
    QScreen* screen = QGuiApplication::screenAt(QCursor::pos());
    if (!screen) screen = QGuiApplication::primaryScreen();
    if (!screen) return Windowing::availableArea();
    const QRect area = screen->availableGeometry();
    return Area{area.left() * 15, area.top() * 15, area.width() * 15, area.height() * 15};
}

void QtWindowing::enterWhatsThisMode() { QWhatsThis::enterWhatsThisMode(); }

void QtWindowing::raise(Form& form) {
    FormWindow* window = renderer_.windowOf(form);
    if (!window || !window->isVisible()) return;
    window->setWindowState(window->windowState() & ~Qt::WindowMinimized);
    window->raise();
    window->activateWindow();
}

void QtWindowing::printWindowImage(Form& form, const std::string& printerName, int copies) {
    FormWindow* window = renderer_.windowOf(form);
    if (!window) throw FileFailure("The window " + form.name() + " is not shown");
    renderer_.syncAll();
    const QPixmap image = window->grab();
    std::unique_ptr<QPrinter> own;
    QPrinter* printer = choice_.printer.get();
    if (!printer || (!printerName.empty() && str(printer->printerName()) != printerName)) {
        own = std::make_unique<QPrinter>(QPrinter::HighResolution);
        own->setPrinterName(qs(printerName));
        printer = own.get();
    }
    // The copies are drawn here, one page each, so that a printer that would repeat the job
    // itself (and a PDF file, which cannot) gives exactly the copies asked for.
    printer->setCopyCount(1);
    QPainter painter;
    if (!painter.begin(printer)) throw FileFailure("Cannot print on " + printerName);
    // The window's image, as large as the page allows without changing its shape.
    const QRect page = painter.viewport();
    const QSize size = image.size().scaled(page.size(), Qt::KeepAspectRatio);
    for (int copy = 0; copy < std::max(1, copies); ++copy) {
        if (copy > 0 && !printer->newPage()) throw FileFailure("Printing failed on " + printerName);
        painter.setViewport(page.x(), page.y(), size.width(), size.height());
        painter.setWindow(image.rect());
        painter.drawPixmap(0, 0, image);
    }
    if (!painter.end()) throw FileFailure("Printing failed on " + printerName);
}

QtPlatform::QtPlatform()
    : dialogs_(printerChoice_),
      windowing_(renderer_, printerChoice_),
      notifications_([this](const std::function<void()>& answer) { renderer_.forward(answer); }),
      feeds_([this](const std::function<void()>& answer) { renderer_.forward(answer); }),
      platform_{environment_, clock_,     locale_,    messages_, files_,
                processes_,   dialogs_,   windowing_, canvases_, calendars_,
                notifications_, feeds_} {
    initPictures();
}

QtPlatform::~QtPlatform() = default;

}  // namespace qh
