// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/data_commands.h"

#include "app/notice_bar.h"
#include "app/plot3d_dialog.h"
#include "app/plot3d_layout.h"
#include "app/recent_files.h"
#include "samples/demo_data.h"

#include <QFileDialog>
#include <QFileInfo>

namespace corvala::app {

DataCommands::DataCommands(QWidget& window, NoticeBar& notice)
    : QObject(&window)
    , m_window(window)
    , m_notice(notice)
{
    connect(&m_opener, &DataOpener::opened, this, &DataCommands::tellOpened);
    connect(&m_opener, &DataOpener::failed, this, &DataCommands::failed);
}

void DataCommands::open(const QStringList& files, const host::io::Plot3DLayout& plot3d)
{
    host::io::ReadRequest request;
    for (const QString& file : files) // which are remembered, too
        request.files << QFileInfo(file).absoluteFilePath();
    request.plot3d = plot3d;
    m_opener.start(request);
}

void DataCommands::openDemo(const QString& name)
{
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

void DataCommands::tellOpened(const host::io::ReadResult& result)
{
    rememberFiles(m_opener.request().files);
    QStringList notes;
    for (const std::string& note : result.data->notes)
        notes << QString::fromStdString(note);
    if (!result.detectedPlot3D) {
        m_notice.tell(notes.join(QLatin1Char(' ')));
        return;
    }
    const host::io::Plot3DLayout detected = *result.detectedPlot3D;
    const host::io::ReadRequest request = m_opener.request();
    notes.prepend(tr("Detected: %1.").arg(describePlot3DLayout(detected)));
    m_notice.tell(notes.join(QLatin1Char(' ')), tr("Change..."),
                  [this, request, detected] { changePlot3DLayout(request, detected); });
}

} // namespace corvala::app
