// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "app/data_opening.h"

class QWidget;

namespace corvala::app {

class NoticeBar;

/// Opens data as the user asks, and tells in the notice bar what the reader found.
class DataCommands : public QObject
{
    Q_OBJECT

public:
    /// Asks in dialogs over the window. The notice bar must outlive the commands.
    DataCommands(QWidget& window, NoticeBar& notice);

    DataOpener& opener() { return m_opener; }

    /// Ignored while a reading runs.
    void open(const QStringList& files, const host::io::Plot3DLayout& plot3d = {});
    void openDemo(const QString& name);
    void chooseFiles();
    void chooseFolder();
    void choosePlot3DFiles();

Q_SIGNALS:
    void failed(const QString& problem);

private:
    void changePlot3DLayout(const host::io::ReadRequest& request,
                            const host::io::Plot3DLayout& detected);
    void tellOpened(const host::io::ReadResult& result);

    QWidget& m_window;
    NoticeBar& m_notice;
    DataOpener m_opener;
};

} // namespace corvala::app
