// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/program.h"

#include "app/busy_cursor.h"
#include "app/command_line.h"
#include "app/data_opening.h"
#include "app/display.h"
#include "app/focus_style.h"
#include "app/icons.h"
#include "app/language.h"
#include "app/main_window.h"
#include "app/picture_output.h"
#include "app/program_stage.h"
#include "app/style_dialog.h"
#include "app/termination.h"
#include "app/window_memory.h"
#include "host/document/document.h"
#include "host/storage/document_file.h"
#include "host/undo/gesture_tracker.h"
#include "play/dialog_driver.h"
#include "play/player.h"
#include "play/style_report.h"
#include "plot/line/fit_report.h"
#include "plot/render.h"
#include "plot/stored_view.h"
#include "samples/demo_data.h"
#include "sdk/propertybindings/curve_fit_report.h"

#include <QApplication>
#include <QFile>
#include <QLocale>
#include <QMessageBox>
#include <QSettings>
#include <QSurfaceFormat>
#include <QTemporaryDir>
#include <QTimer>

#include <QVTKOpenGLNativeWidget.h>

#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <clocale>
#include <cstdio>
#include <cstdlib>
#include <optional>

namespace corvala::app {

enum ExitCode { Success = 0, Failure = 1, WrongUsage = 2 };

struct Program
{
    Q_DECLARE_TR_FUNCTIONS(Program)
};

static int fail(const QString& message)
{
    std::fprintf(stderr, "%s\n", qUtf8Printable(message));
    return Failure;
}

static QString named(const QString& message)
{
    return QStringLiteral("corvala: ") + message;
}

static QStringList argumentsOf(int argc, char** argv)
{
    QStringList arguments;
    for (int i = 1; i < argc; ++i)
        arguments << QFile::decodeName(argv[i]);
    return arguments;
}

static void printNotes(const QStringList& notes)
{
    for (const QString& note : notes)
        std::fprintf(stderr, "%s\n", qUtf8Printable(named(note)));
}

static QString openDocumentNow(const QString& file)
{
    const auto outcome = host::storage::loadDocument(host::Document::instance(), file, readAndWait);
    printNotes(outcome.notes);
    return outcome.problem;
}

/// A program that a desktop started has no terminal; pipes belong to scripts, which read them.
static bool isReadByNobody(std::FILE* stream)
{
    struct stat status
    {
    };
    const int file = fileno(stream);
    return isatty(file) == 0 && (fstat(file, &status) != 0 || !S_ISFIFO(status.st_mode));
}

/// A desktop passes files only; who writes options reads what is said of them, or is a script.
static bool hasOptions(const QStringList& arguments)
{
    return std::any_of(arguments.begin(), arguments.end(), [](const QString& argument) {
        return argument.startsWith(QLatin1Char('-'));
    });
}

/// Shows in a window, besides, why the program cannot start when nobody reads what it prints.
static void showProblem(int argc, char** argv, const QString& problem)
{
    Display display;
    if (hasOptions(argumentsOf(argc, argv)) || !isReadByNobody(stderr)
        || !display.prepare({}).isEmpty())
        return;
    QApplication application(argc, argv);
    QMessageBox box(QMessageBox::Critical, Program::tr("corvala"), problem, QMessageBox::Close);
    box.setTextFormat(Qt::PlainText);
    box.setWindowIcon(programIcon());
    box.exec();
}

static QString openDataNow(const Options& options)
{
    if (!options.demo.isEmpty()) {
        std::string error;
        samples::openDemo(options.demo.toStdString(), 0, error);
        return QString::fromStdString(error);
    }
    if (options.files.isEmpty())
        return {};
    if (host::storage::isDocumentFile(options.files.constFirst()))
        return openDocumentNow(options.files.constFirst());
    const OpenedData opened = openAndWait(options.request());
    printNotes(opened.notes);
    return opened.error;
}

static QString writeReport(MainWindow& window, const QString& file)
{
    window.openStyleDialog(corvala::dialogs::common::DialogInitialization_None);
    return play::writeStyleReport(play::DialogDriver(), QStringLiteral("all"), file);
}

static QString drawPicture(const Options& options)
{
    std::vector<plot::SceneNote> notes;
    QString problem =
        writePicture(options.picture, options.pictureSize, options.paper,
                     [&notes](QPaintDevice& device, plot::Paper paper) {
                         return plot::paintFrame(host::Document::instance().activeFrameId(), device,
                                                 paper, &notes);
                     });
    for (const plot::SceneNote& note : notes)
        std::fprintf(stderr, "%s\n", qUtf8Printable(named(Program::tr("note: %1").arg(note.text))));
    return problem;
}

/// The settings of curve fits show what comes of the fits that the plots draw, while this lives.
class CurveFitReports
{
public:
    CurveFitReports()
    {
        propertybindings::setCurveFitReporter([this](CvlUniqueId frame, CvlInt64 map) {
            const host::Frame* const shown = host::Document::instance().frame(frame);
            const bool exists = shown && map >= 1 && map <= shown->lineMapCount();
            return exists ? m_reports.of(*shown, map) : std::optional(QString());
        });
    }
    ~CurveFitReports() { propertybindings::setCurveFitReporter({}); }
    CurveFitReports(const CurveFitReports&) = delete;
    CurveFitReports& operator=(const CurveFitReports&) = delete;

private:
    plot::FitReports m_reports;
};

static int runBatch(MainWindow& window, const Options& options)
{
    QString error = openDataNow(options);
    if (!error.isEmpty())
        return fail(named(error));
    if (!options.script.isEmpty()) {
        window.show();
        ProgramStage stage(window);
        error = play::playScript(options.script, stage);
        if (!error.isEmpty())
            return fail(error);
    }
    if (!options.report.isEmpty())
        error = writeReport(window, options.report);
    if (error.isEmpty() && !options.picture.isEmpty())
        error = drawPicture(options);
    if (error.isEmpty() && !options.document.isEmpty())
        error = host::storage::saveDocument(host::Document::instance(), options.document);
    return error.isEmpty() ? Success : fail(named(error));
}

void startInteractive(MainWindow& window, const Options& options)
{
    offerAllLineTabs();
    window.askBeforeLosing();
    window.restore();
    window.show();
    if (wasStyleDialogOpen())
        window.openStyleDialogWithData();
    if (!options.files.isEmpty())
        window.openFiles(options.request());
    else if (!options.demo.isEmpty())
        window.openDemo(options.demo);
}

/// Complaints of the platform about what a run without a screen lacks are not the user's business.
static void printMessage(QtMsgType type, const QMessageLogContext& context, const QString& message)
{
    if (message.startsWith(QLatin1String("This plugin does not support "))
        || message.startsWith(QLatin1String("QStandardPaths: XDG_RUNTIME_DIR not set")))
        return;
    std::fprintf(stderr, "%s\n", qUtf8Printable(qFormatLogMessage(type, context, message)));
    if (type == QtFatalMsg)
        std::abort();
}

static void setUpQt()
{
    qInstallMessageHandler(printMessage);
    QApplication::setAttribute(Qt::AA_EnableHighDpiScaling);
    QApplication::setAttribute(Qt::AA_UseHighDpiPixmaps);
    // Fonts follow the resolution of the screen, pixels its whole factor: at 1.04, which many X
    // servers report, widgets are painted a pixel too narrow.
    QApplication::setHighDpiScaleFactorRoundingPolicy(
        Qt::HighDpiScaleFactorRoundingPolicy::RoundPreferFloor);
    QSurfaceFormat::setDefaultFormat(QVTKOpenGLNativeWidget::defaultFormat());
    QCoreApplication::setApplicationName(QStringLiteral("corvala"));
    QCoreApplication::setApplicationVersion(QStringLiteral(CORVALA_VERSION));
}

/// Numbers are written with a point whatever the language: in tables, prompts and files.
static void setUpLocale()
{
    QLocale::setDefault(QLocale::c());
    std::setlocale(LC_NUMERIC, "C");
}

static int runApplication(int argc, char** argv, const Options& options)
{
    QApplication application(argc, argv);
    QApplication::setStyle(new FocusStyle);
    setUpLocale();
    // Scripts name what they see in English.
    setUpLanguage(options.isScripted() ? QStringList() : userLanguages());
    const Termination termination;
    const CurveFitReports reports;
    host::storage::setViewCheck(plot::checkView);
    const host::GestureTracker gestures(host::Document::instance().undo());
    std::optional<QTemporaryDir> settings; // batch work neither reads nor changes the user's
    if (options.isBatch())
        QSettings::setPath(QSettings::IniFormat, QSettings::UserScope, settings.emplace().path());
    MainWindow window;
    if (!options.isBatch()) {
        const BusyCursor busy;
        const WindowMemory memory(window, window.styleDialogCommand());
        startInteractive(window, options);
        return Termination::exitCode(QApplication::exec());
    }
    QTimer::singleShot(0, &window, [&] { QApplication::exit(runBatch(window, options)); });
    return Termination::exitCode(QApplication::exec());
}

/// The exit code of a run that ends here, else -1.
static int readOptions(int argc, char** argv, Options& options, QString& misuse)
{
    const QCoreApplication application(argc, argv); // which has texts in the user's language
    setUpLanguage(userLanguages());
    misuse = parseCommandLine(argumentsOf(argc, argv), options);
    if (!misuse.isEmpty()) {
        fail(named(misuse) + QLatin1Char('\n') + Program::tr("Try 'corvala --help'."));
        return WrongUsage;
    }
    if (!options.help && !options.version)
        return -1;
    std::fputs(options.help ? qUtf8Printable(usageText()) : "corvala " CORVALA_VERSION "\n",
               stdout);
    return Success;
}

int runProgram(int argc, char** argv)
{
    Options options;
    QString misuse;
    const int parsed = readOptions(argc, argv, options, misuse);
    if (parsed == Success)
        return parsed;
    setUpQt();
    if (parsed >= 0) {
        showProblem(argc, argv, misuse);
        return parsed;
    }
    Display display;
    const QString noDisplay = display.prepare(options);
    return noDisplay.isEmpty() ? runApplication(argc, argv, options) : fail(named(noDisplay));
}

} // namespace corvala::app
