// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/picture_commands.h"

#include "app/busy_cursor.h"
#include "app/picture_output.h"
#include "app/picture_size_dialog.h"
#include "app/plot_area.h"
#include "app/user_settings.h"
#include "host/document/document.h"

#include <QClipboard>
#include <QDir>
#include <QEventLoop>
#include <QFileDialog>
#include <QGuiApplication>
#include <QPaintDevice>
#include <QProgressDialog>
#include <QRegularExpression>
#include <QTimer>

#include <algorithm>

namespace corvala::app {

static const char* const kFolderKey = "picture/folder";
static const char* const kFilterKey = "picture/format";

PictureCommands::PictureCommands(QWidget& window, PlotArea& plot)
    : QObject(&window)
    , m_window(window)
    , m_plot(plot)
{
}

/// How far a picture has come, with a button to cancel it, once it takes longer.
class PictureProgress : public QProgressDialog
{
public:
    explicit PictureProgress(QWidget& window)
        : QProgressDialog(PictureCommands::tr("Drawing the picture..."),
                          PictureCommands::tr("Cancel"), 0, kPercent, &window)
    {
        constexpr int kPatience = 500; // milliseconds
        setWindowModality(Qt::ApplicationModal);
        setMinimumDuration(kPatience);
        setAutoReset(false);
    }

    /// Before drawing to a device with so many pixels that the first part of the work, in which
    /// nothing else happens, may take long.
    void begin(const QPaintDevice& device)
    {
        constexpr double kManyPixels = 1e7;
        constexpr int kUntilPainted = 300; // milliseconds: a window shows a while after it is asked
        if (double(device.width()) * device.height() < kManyPixels)
            return;
        show();
        QEventLoop meanwhile;
        QTimer::singleShot(kUntilPainted, &meanwhile, &QEventLoop::quit);
        meanwhile.exec();
    }

    /// Lets the windows live meanwhile.
    plot::WorkWatch watch()
    {
        return [this](CvlInt64 done, CvlInt64 total) {
            setValue(total > 0 ? static_cast<int>(kPercent * done / total) : 0);
            return !wasCanceled();
        };
    }

private:
    static constexpr int kPercent = 100;
};

void PictureCommands::copy()
{
    const BusyCursor busy;
    QString error;
    PictureProgress progress(m_window);
    const QImage picture = m_plot.picture(&error, progress.watch());
    if (picture.isNull() && progress.wasCanceled()) {
        Q_EMIT told(tr("The picture was not copied"));
        return;
    }
    if (picture.isNull()) {
        Q_EMIT failed(tr("The picture cannot be copied: %1").arg(error));
        return;
    }
    QGuiApplication::clipboard()->setImage(picture);
    Q_EMIT told(
        tr("Copied the picture: %1 x %2 pixels").arg(picture.width()).arg(picture.height()));
}

/// Of the document, else of the data.
static QString proposedName(const QString& document)
{
    static const QRegularExpression kNotInNames(QStringLiteral("[\\\\/:*?\"<>|\\x00-\\x1f]+"));
    const host::Frame* const frame = host::Document::instance().activeFrame();
    QString name = QFileInfo(document).completeBaseName();
    if (name.isEmpty() && frame && frame->hasData()) {
        const host::DataSet& data = *frame->data();
        name = QString::fromStdString(data.title);
        const bool isFile =
            std::any_of(data.files.begin(), data.files.end(), [&](const auto& file) {
                return QFileInfo(QString::fromStdString(file)).fileName() == name;
            });
        name = isFile ? QFileInfo(name).completeBaseName() : name;
    }
    name = name.replace(kNotInNames, QStringLiteral("_")).trimmed();
    return name.isEmpty() ? QStringLiteral("plot") : name;
}

QString PictureCommands::askForFile()
{
    QSettings settings = userSettings();
    QFileDialog chooser(&m_window, tr("Save Picture"));
    chooser.setAcceptMode(QFileDialog::AcceptSave);
    chooser.setNameFilters(pictureFilters());
    const auto followFilter = [&chooser](const QString& filter) {
        static const QRegularExpression kFirst(QStringLiteral("\\*\\.(\\w+)"));
        chooser.setDefaultSuffix(kFirst.match(filter).captured(1));
    };
    connect(&chooser, &QFileDialog::filterSelected, &chooser, followFilter);
    chooser.selectNameFilter(settings.value(QLatin1String(kFilterKey)).toString());
    followFilter(chooser.selectedNameFilter());
    const QString folder = settings.value(QLatin1String(kFolderKey)).toString();
    if (!folder.isEmpty() && QDir(folder).exists())
        chooser.setDirectory(folder);
    chooser.selectFile(proposedName(m_window.windowFilePath()));
    if (chooser.exec() != QDialog::Accepted)
        return {};
    settings.setValue(QLatin1String(kFolderKey), chooser.directory().absolutePath());
    settings.setValue(QLatin1String(kFilterKey), chooser.selectedNameFilter());
    return chooser.selectedFiles().value(0);
}

void PictureCommands::save()
{
    const QString file = askForFile();
    if (file.isEmpty())
        return;
    QString problem = pictureFormatProblem(file);
    if (!problem.isEmpty()) {
        Q_EMIT failed(problem);
        return;
    }
    PictureSizeDialog sizes(file, &m_window);
    if (sizes.exec() != QDialog::Accepted)
        return;
    PictureProgress progress(m_window);
    {
        const BusyCursor busy;
        problem = writePicture(file, sizes.chosenSize(), sizes.chosenPaper(),
                               [&](QPaintDevice& device, plot::Paper paper) {
                                   progress.begin(device);
                                   return m_plot.paint(device, paper, progress.watch());
                               });
    }
    progress.close();
    if (!problem.isEmpty() && progress.wasCanceled())
        Q_EMIT told(tr("The picture was not saved"));
    else if (!problem.isEmpty())
        Q_EMIT failed(problem);
    else
        Q_EMIT told(tr("Saved %1: %2")
                        .arg(QDir::toNativeSeparators(file), shownSize(file, sizes.chosenSize())));
}

} // namespace corvala::app
