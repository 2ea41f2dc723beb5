// SPDX-License-Identifier: BSD-3-Clause
#include "host/io/data_reader.h"

#include "host/io/process_vitals.h"
#include "host/io/read_folder.h"
#include "host/io/read_protocol.h"
#include "host/io/read_result.h"

#include <QCoreApplication>
#include <QDir>
#include <QEventLoop>
#include <QFile>
#include <QFileInfo>
#include <QProcess>
#include <QTimer>

#include <csignal>
#include <thread>
#include <tuple>
#include <utility>

namespace corvala::host::io {

static constexpr int kLongestLine = 1 << 20;
static constexpr int kLongestComplaint = 200;
static constexpr int kMostMillisecondsToEnd = 500; ///< of a killed process, if no disk is stuck
static constexpr int kLooksInPatience = 20; ///< at whether the reading program moves

class DataReader::Private
{
public:
    explicit Private(DataReader* reader);
    ~Private();

    void start(const ReadRequest& request);
    void end(bool byUser);
    void fail(const QString& reason);

    std::unique_ptr<QProcess> ownProcess = std::make_unique<QProcess>();
    QProcess& process = *ownProcess;
    bool running = false;

private:
    bool prepareFolder(const ReadRequest& request);
    void watch(int patienceMilliseconds);
    void endWatch();
    void lookForLife();
    void readLines();
    void takeLine(const QByteArray& text);
    void processEnded(int code, QProcess::ExitStatus status);
    QString reasonForEnd(int code, QProcess::ExitStatus status) const;
    void startLoading();
    void takeLoaded(const LoadedData& loaded);
    void giveUp();
    void finish(const ReadResult& result);

    DataReader* q;
    QTimer standstill; ///< ends when nothing moved for as long as one is patient
    QTimer look;
    QByteArray vitals; ///< at the last look
    QByteArray lastLine;
    std::unique_ptr<ReadFolder> folder;
    QString currentFile;
    QByteArray complaints; ///< the end of what libraries printed
    QString reason; ///< why it cannot be read, as far as known
    BadRows badRows; ///< which are the reason
    bool cancelled = false;
    std::thread loader; ///< runs while the folder of the reading program is loaded
    bool hasSpoken = false; ///< the reading program came to work
};

DataReader::Private::Private(DataReader* reader)
    : q(reader)
{
    process.setStandardInputFile(QProcess::nullDevice());
    standstill.setSingleShot(true);
    QObject::connect(&standstill, &QTimer::timeout, q, [this] {
        reason = DataReader::tr("the reader made no progress for %n second(s)", nullptr,
                                standstill.interval() / 1000);
        process.kill();
    });
    QObject::connect(&look, &QTimer::timeout, q, [this] { lookForLife(); });
    QObject::connect(&process, &QProcess::readyReadStandardOutput, q, [this] { readLines(); });
    QObject::connect(&process, &QProcess::readyReadStandardError, q, [this] {
        complaints = (complaints + process.readAllStandardError()).right(kLongestComplaint);
    });
    QObject::connect(&process, QOverload<int, QProcess::ExitStatus>::of(&QProcess::finished), q,
                     [this](int code, QProcess::ExitStatus status) { processEnded(code, status); });
    QObject::connect(&process, &QProcess::errorOccurred, q, [this](QProcess::ProcessError error) {
        if (error == QProcess::FailedToStart)
            fail(DataReader::tr("the reading program cannot be started: %1")
                     .arg(process.errorString()));
    });
}

DataReader::Private::~Private()
{
    cancelled = true;
    if (loader.joinable())
        loader.join();
    process.disconnect();
    if (process.state() == QProcess::NotRunning)
        return;
    process.kill();
    if (!process.waitForFinished(kMostMillisecondsToEnd))
        ownProcess.release(); // which would wait for it: the system ends it when the disk answers
}

void DataReader::Private::start(const ReadRequest& request)
{
    running = true;
    cancelled = false;
    hasSpoken = false;
    reason.clear();
    badRows = {};
    complaints.clear();
    currentFile = QDir().absoluteFilePath(request.files.value(0));
    const QString program = readerProgram();
    if (request.files.isEmpty())
        return fail(DataReader::tr("no file is named"));
    if (program.isEmpty())
        return fail(DataReader::tr("the reading program corvala-read is missing"));
    if (!prepareFolder(request))
        return fail(DataReader::tr("no temporary folder can be made in %1").arg(QDir::tempPath()));
    watch(request.limits.patienceMilliseconds);
    process.start(program, {folder->path()});
}

bool DataReader::Private::prepareFolder(const ReadRequest& request)
{
    folder = std::make_unique<ReadFolder>();
    if (!folder->isValid())
        return false;
    ReadRequest absolute = request;
    for (QString& file : absolute.files)
        file = QDir().absoluteFilePath(file);
    QFile file(folder->filePath(QString::fromLatin1(kRequestFile)));
    const QByteArray text = QByteArray::fromStdString(toJson(absolute));
    return file.open(QIODevice::WriteOnly) && file.write(text) == text.size() && file.flush();
}

void DataReader::Private::watch(int patienceMilliseconds)
{
    vitals.clear();
    lastLine.clear();
    standstill.start(patienceMilliseconds);
    look.start(patienceMilliseconds / kLooksInPatience);
}

void DataReader::Private::endWatch()
{
    standstill.stop();
    look.stop();
}

void DataReader::Private::lookForLife()
{
    if (const QByteArray now = vitalsOf(process.processId()); now != vitals) {
        vitals = now;
        standstill.start();
    }
}

void DataReader::Private::end(bool byUser)
{
    cancelled = cancelled || byUser;
    process.kill();
}

/// Ends a reading that did not come to run a process. Later, as `finished` follows `start`.
void DataReader::Private::fail(const QString& why)
{
    endWatch();
    reason = why;
    QTimer::singleShot(0, q, [this] { processEnded(-1, QProcess::NormalExit); });
}

void DataReader::Private::readLines()
{
    while (process.canReadLine()) {
        const QByteArray line = process.readLine().trimmed();
        if (line != lastLine)
            standstill.start();
        lastLine = line;
        takeLine(line);
    }
    if (process.bytesAvailable() > kLongestLine) {
        process.readAllStandardOutput();
        takeLine({});
    }
}

void DataReader::Private::takeLine(const QByteArray& text)
{
    const std::optional<ReaderLine> line = lineFromJson(text.toStdString());
    if (!line) {
        reason = DataReader::tr("the reader gave an answer that cannot be understood");
        process.kill();
        return;
    }
    hasSpoken = true;
    currentFile = QString::fromStdString(line->file);
    if (line->isError)
        std::tie(reason, badRows) = std::make_tuple(line->what.toString(), line->badRows);
    else
        Q_EMIT q->progress(line->percent, line->what.toString());
}

void DataReader::Private::processEnded(int code, QProcess::ExitStatus status)
{
    if (!running)
        return;
    endWatch();
    if (process.isOpen())
        readLines();
    if (reason.isEmpty() && !cancelled)
        reason = reasonForEnd(code, status);
    if (reason.isEmpty() && !cancelled)
        startLoading();
    else
        giveUp();
}

void DataReader::Private::giveUp()
{
    ReadResult result;
    result.cancelled = cancelled;
    if (!cancelled)
        result.error = DataReader::tr("%1 could not be read: %2")
                           .arg(QDir::toNativeSeparators(currentFile), reason);
    result.badRowCount = badRows.count;
    for (const ReadMessage& row : badRows.first)
        result.badRows << row.toString();
    finish(result);
}

/// Why a library crashed at a file; found by another process, which may crash, too.
static QString reasonOfCrash(const QString& file)
{
    constexpr int kMostMilliseconds = 3000;
    QProcess look;
    look.start(DataReader::readerProgram(), {QString::fromLatin1(kReasonOfCrash), file});
    const bool isDone = look.waitForFinished(kMostMilliseconds);
    const auto line = lineFromJson(look.readAllStandardOutput().trimmed().toStdString());
    return isDone && line ? line->what.toString() : QString();
}

/// A library that meets what it does not expect crashes, or ends the program.
QString DataReader::Private::reasonForEnd(int code, QProcess::ExitStatus status) const
{
    const bool crashed = status == QProcess::CrashExit;
    if (code == 0 && !crashed)
        return {};
    if (crashed && code == SIGKILL)
        return DataReader::tr("the reader was killed; perhaps the machine ran out of memory");
    QString how =
        QString::fromUtf8(complaints.trimmed()).section(QLatin1Char('\n'), -1).simplified();
    if (crashed)
        how = DataReader::tr("signal %1").arg(code);
    else if (how.isEmpty())
        how = DataReader::tr("exit code %1").arg(code);
    if (!hasSpoken)
        return DataReader::tr("the reader stopped unexpectedly (%1)").arg(how);
    const QString why = crashed ? reasonOfCrash(currentFile) : QString();
    if (!why.isEmpty())
        return QStringLiteral("%1 (%2)").arg(why, how);
    return DataReader::tr("the reader failed (%1); the file, or one that it names, holds something "
                          "that it cannot read, or is damaged")
        .arg(how);
}

/// On a thread of its own, so that the program goes on meanwhile.
void DataReader::Private::startLoading()
{
    Q_EMIT q->progress(-1, DataReader::tr("Loading %1").arg(QFileInfo(currentFile).fileName()));
    loader = std::thread([this, taken = folder.release()] {
        const LoadedData loaded = loadData(std::unique_ptr<ReadFolder>(taken));
        QMetaObject::invokeMethod(
            q, [this, loaded] { takeLoaded(loaded); }, Qt::QueuedConnection);
    });
}

void DataReader::Private::takeLoaded(const LoadedData& loaded)
{
    loader.join();
    if (!loaded.data && !loaded.preview && !cancelled)
        reason = DataReader::tr("the reader gave an answer that cannot be understood");
    if (!reason.isEmpty() || cancelled)
        return giveUp();
    ReadResult result;
    result.data = loaded.data;
    result.noteGroups = loaded.noteGroups;
    result.offers = loaded.offers;
    result.detectedPlot3D = loaded.plot3d;
    result.detectedText = loaded.text;
    result.preview = loaded.preview;
    finish(result);
}

void DataReader::Private::finish(const ReadResult& result)
{
    running = false;
    folder.reset();
    Q_EMIT q->finished(result);
}

DataReader::DataReader(QObject* parent)
    : QObject(parent)
    , d(std::make_unique<Private>(this))
{
    qRegisterMetaType<ReadResult>();
}

DataReader::~DataReader() = default;

void DataReader::start(const ReadRequest& request)
{
    if (!d->running)
        d->start(request);
}

void DataReader::cancel()
{
    if (d->running)
        d->end(true);
}

bool DataReader::isRunning() const
{
    return d->running;
}

qint64 DataReader::processId() const
{
    return d->process.processId();
}

ReadResult DataReader::read(const ReadRequest& request)
{
    DataReader reader;
    QEventLoop loop;
    ReadResult result;
    result.cancelled = true; // the program may end while it is being read
    result.error = tr("the reading was given up");
    connect(&reader, &DataReader::finished, &loop, [&](const ReadResult& found) {
        result = found;
        loop.quit();
    });
    reader.start(request);
    loop.exec();
    return result;
}

QString DataReader::readerProgram()
{
    const QString folder = QCoreApplication::applicationDirPath();
    const QStringList places {
        folder + QStringLiteral("/corvala-read"),
        folder + QStringLiteral("/../libexec/corvala/corvala-read"),
        QFile::decodeName(qgetenv("CORVALA_READ")),
    };
    for (const QString& place : places)
        if (!place.isEmpty() && QFileInfo(place).isFile() && QFileInfo(place).isExecutable())
            return QFileInfo(place).absoluteFilePath();
    return {};
}

QString DataReader::nameFilters()
{
    const std::pair<QString, QString> kinds[] = {
        {tr("Documents"), QStringLiteral("*.cvdoc")},
        {tr("VTK files"),
         QStringLiteral("*.vtm *.vtmb *.vtpc *.vtpd *.vthb *.vth *.vtu *.vtp *.vts *.vtr *.vti "
                        "*.pvtu *.pvtp *.pvts *.pvtr *.pvti *.pvd *.series *.vtk")},
        {tr("Surfaces"), QStringLiteral("*.stl *.ply *.obj")},
        {tr("CGNS files"), QStringLiteral("*.cgns *.adf *.hdf5")},
        {tr("Plot3D files"),
         QStringLiteral("*.xyz *.x *.xy *.p3d *.grd *.g *.bin *.q *.f *.fun *.fmt *.p3dfmt")},
        {tr("EnSight files"), QStringLiteral("*.case *.encas")},
        {tr("Exodus II files"),
         QStringLiteral("*.exo *.e *.ex2 *.exii *.g *.gen *.ncdf *.e-s* "
                        "*.e.*.* *.exo.*.* *.g.*.* *.gen.*.*")},
        {tr("OpenFOAM cases"), QStringLiteral("*.foam *.OpenFOAM controlDict")},
        {tr("Tables of text"), QStringLiteral("*.csv *.tsv *.tab *.txt *.dat *.prn *.asc")},
    };
    QStringList all;
    QStringList filters;
    for (const auto& [title, patterns] : kinds) {
        all << patterns;
        filters << QStringLiteral("%1 (%2)").arg(title, patterns);
    }
    all = all.join(QLatin1Char(' ')).split(QLatin1Char(' '));
    all.removeDuplicates();
    filters.prepend(tr("Data files (%1)").arg(all.join(QLatin1Char(' '))));
    filters << tr("All files (*)");
    return filters.join(QStringLiteral(";;"));
}

} // namespace corvala::host::io
