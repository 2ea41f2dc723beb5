// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/data_commands.h"

#include "app/notice_bar.h"
#include "app/plot3d_dialog.h"
#include "app/plot3d_layout.h"
#include "app/recent_files.h"
#include "app/text_import_dialog.h"
#include "host/document/document.h"
#include "host/storage/document_file.h"
#include "samples/demo_data.h"

#include <QFileDialog>
#include <QFileInfo>
#include <QMessageBox>
#include <QPushButton>

#include <algorithm>

namespace corvala::app {

DataCommands::DataCommands(QWidget& window, NoticeBar& notice)
    : QObject(&window)
    , m_window(window)
    , m_notice(notice)
{
    connect(&m_opener, &DataOpener::opened, this, &DataCommands::tellOpened);
    connect(&m_opener, &DataOpener::previewed, this, &DataCommands::askForDialect);
    connect(&m_opener, &DataOpener::badRowsMet, this, &DataCommands::askToSkip);
    connect(&m_opener, &DataOpener::failed, this, &DataCommands::failed);
}

static std::shared_ptr<const host::DataSet> dataOfActiveFrame()
{
    const host::Frame* const frame = host::Document::instance().activeFrame();
    return frame ? frame->sharedData() : nullptr;
}

void DataCommands::open(const QStringList& files, const host::io::Plot3DLayout& plot3d, DataUse use)
{
    host::io::ReadRequest request;
    request.files = files;
    request.plot3d = plot3d;
    open(request, use);
}

static bool hasBoundaryPatches()
{
    const host::Frame* const frame = host::Document::instance().activeFrame();
    return frame
        && std::any_of(frame->origins().begin(), frame->origins().end(),
                       [](const host::DataOrigin& origin) { return origin.boundaryPatches; });
}

void DataCommands::open(host::io::ReadRequest request, DataUse use)
{
    for (QString& file : request.files) // which are remembered, too
        file = QFileInfo(file).absoluteFilePath();
    if (use == DataUse::Replace && request.files.size() == 1
        && host::storage::isDocumentFile(request.files.constFirst())) {
        Q_EMIT documentWanted(request.files.constFirst());
        return;
    }
    if (m_opener.isRunning() || (use == DataUse::Replace && !m_mayReplace()))
        return;
    if (use == DataUse::Add && hasBoundaryPatches())
        request.choices.boundaryPatches = true;
    if (host::io::toText(request.text).isEmpty())
        request.purpose = host::io::ReadPurpose::DataIfSure;
    m_opener.start(request, use);
}

void DataCommands::preview(host::io::ReadRequest request, DataUse use)
{
    if (m_opener.isRunning() || (use == DataUse::Replace && !m_mayReplace()))
        return;
    request.purpose = host::io::ReadPurpose::Preview;
    m_opener.start(request, use);
}

void DataCommands::openDemo(const QString& name)
{
    if (!m_mayReplace())
        return;
    std::string error;
    if (samples::openDemo(name.toStdString(), 0, error))
        m_notice.tell({});
    else
        Q_EMIT failed(QString::fromStdString(error));
}

void DataCommands::chooseFiles()
{
    const QStringList files = QFileDialog::getOpenFileNames(&m_window, tr("Open Data"), {},
                                                            host::io::DataReader::nameFilters());
    if (!files.isEmpty())
        open(files);
}

void DataCommands::chooseMore()
{
    const QStringList files = QFileDialog::getOpenFileNames(&m_window, tr("Add Data"), {},
                                                            host::io::DataReader::nameFilters());
    if (!files.isEmpty())
        open(files, {}, DataUse::Add);
}

void DataCommands::closeData()
{
    if (m_opener.isRunning() || !m_mayReplace())
        return;
    host::Document::instance().execute(host::DetachData {});
    m_notice.tell({});
}

void DataCommands::chooseFolder()
{
    const QString folder = QFileDialog::getExistingDirectory(&m_window, tr("Open Case Folder"));
    if (!folder.isEmpty())
        open({folder});
}

void DataCommands::choosePlot3DFiles()
{
    const QStringList files = QFileDialog::getOpenFileNames(&m_window, tr("Open Plot3D Data"));
    if (files.isEmpty())
        return;
    Plot3DDialog dialog({}, nullptr, &m_window);
    if (dialog.exec() == QDialog::Accepted)
        open(files, dialog.chosenLayout());
}

void DataCommands::changePlot3DLayout(const host::io::ReadRequest& request,
                                      const host::io::Plot3DLayout& detected)
{
    Plot3DDialog dialog(request.plot3d, &detected, &m_window);
    if (dialog.exec() == QDialog::Accepted)
        open(request.files, dialog.chosenLayout());
}

void DataCommands::chooseTables()
{
    host::io::ReadRequest request;
    request.files = QFileDialog::getOpenFileNames(&m_window, tr("Open Tables of Text"));
    if (!request.files.isEmpty())
        preview(request, DataUse::Replace);
}

void DataCommands::askForDialect(const host::io::TextPreview& preview)
{
    auto* dialog = new TextImportDialog(m_opener.request(), preview, &m_window);
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    connect(dialog, &QDialog::accepted, this, [this, dialog, use = m_opener.use()] {
        host::io::ReadRequest request = dialog->request();
        request.purpose = host::io::ReadPurpose::Data;
        if (!request.text.badRows) // so that something is chosen, and nothing in doubt any more
            request.text.badRows = host::io::TextBadRows::Refuse;
        m_opener.start(request, use);
    });
    dialog->open();
}

void DataCommands::askToSkip(const host::io::ReadResult& result)
{
    host::io::ReadRequest request = m_opener.request();
    const DataUse use = m_opener.use();
    request.text.badRows = host::io::TextBadRows::Skip;
    request.purpose = host::io::ReadPurpose::Data;
    const int count = static_cast<int>(result.badRowCount);
    auto* box = new QMessageBox(QMessageBox::Question, tr("Bad Rows"),
                                tr("Skip %n bad row(s)?", nullptr, count), QMessageBox::NoButton,
                                &m_window);
    QStringList rows = result.badRows;
    if (rows.size() < result.badRowCount)
        rows << tr("...");
    box->setTextFormat(Qt::PlainText);
    box->setInformativeText(result.error.section(QStringLiteral(": "), 0, 0) + QLatin1String(":\n")
                            + rows.join(QLatin1Char('\n')));
    QPushButton* const skip = box->addButton(tr("Skip"), QMessageBox::AcceptRole);
    QPushButton* const change = box->addButton(tr("Change..."), QMessageBox::ActionRole);
    box->addButton(QMessageBox::Cancel);
    box->setAttribute(Qt::WA_DeleteOnClose);
    connect(skip, &QPushButton::clicked, this,
            [this, request, use] { m_opener.start(request, use); });
    connect(change, &QPushButton::clicked, this, [this, request, use] { preview(request, use); });
    box->open();
}

void DataCommands::tellDetected(const QString& detected, QStringList notes,
                                const std::function<void()>& change)
{
    const QStringList& files = m_opener.request().files;
    notes.prepend(
        files.size() == 1
            ? tr("Detected: %1.").arg(detected)
            : tr("Detected in %1: %2.").arg(QFileInfo(files.value(0)).fileName(), detected));
    m_notice.tell(notes.join(QLatin1Char(' ')), tr("Change..."), ofTheseData(change));
}

/// The frame may show other data by the time that the button of a note is clicked.
std::function<void()> DataCommands::ofTheseData(const std::function<void()>& command)
{
    const std::weak_ptr<const host::DataSet> data = dataOfActiveFrame();
    return [this, data, command] {
        const auto shown = dataOfActiveFrame();
        if (shown && shown == data.lock())
            command();
        else
            m_notice.tell(tr("That was about data that the active frame does not show any more."));
    };
}

/// With a button for the first offer; reading again tells the next one. Data that were added are
/// not read again alone.
void DataCommands::tellOffers(const host::io::ReadOffers& offers, QStringList notes)
{
    host::io::ReadRequest request = m_opener.request();
    QString caption;
    notes << describe(offers);
    if (m_opener.use() == DataUse::Add)
        return void(m_notice.tell(notes.join(QLatin1Char(' '))));
    if (offers.numberedFiles > 0) {
        caption = tr("Take Numbers as Times");
        request.choices.numberedTimes = true;
    } else if (offers.boundaryPatches > 0) {
        caption = tr("Read Them");
        request.choices.boundaryPatches = true;
    }
    m_notice.tell(notes.join(QLatin1Char(' ')), caption,
                  ofTheseData([this, request] { open(request); }));
}

void DataCommands::tellOpened(const host::io::ReadResult& result, const QStringList& look)
{
    const host::io::ReadRequest request = m_opener.request();
    rememberFiles(request.files);
    const QStringList notes = look + result.noteGroups;
    const bool isAddition = m_opener.use() == DataUse::Add; // whose reading cannot be changed alone
    if (const std::optional<host::io::Plot3DLayout>& detected = result.detectedPlot3D;
        detected && !isAddition)
        tellDetected(describePlot3DLayout(*detected), notes,
                     [this, request, layout = *detected] { changePlot3DLayout(request, layout); });
    else if (result.detectedText && !isAddition)
        tellDetected(describe(*result.detectedText), notes,
                     [this, request] { preview(request, DataUse::Replace); });
    else
        tellOffers(result.offers, notes);
    QStringList all;
    for (const std::string& note : result.data->notes)
        all << QString::fromStdString(note);
    if (all.size() > result.noteGroups.size())
        m_notice.addDetails(all);
}

} // namespace corvala::app
