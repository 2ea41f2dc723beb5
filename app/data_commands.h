// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "app/data_opening.h"

#include <functional>

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
    /// Asked before the data of the active frame are replaced.
    void setGuard(std::function<bool()> mayReplace) { m_mayReplace = std::move(mayReplace); }

    // Ignored while a reading runs.
    void open(const QStringList& files, const host::io::Plot3DLayout& plot3d = {},
              DataUse use = DataUse::Replace);
    /// Asks how a table of text is written when that is not sure.
    void open(host::io::ReadRequest request, DataUse use = DataUse::Replace);
    void openDemo(const QString& name);
    void chooseFiles();
    void chooseFolder();
    void choosePlot3DFiles();
    void chooseTables();
    void chooseMore(); ///< to be added to the data of the active frame
    void closeData();

Q_SIGNALS:
    void failed(const QString& problem);
    void documentWanted(const QString& file); ///< is among what was to be opened

private:
    void changePlot3DLayout(const host::io::ReadRequest& request,
                            const host::io::Plot3DLayout& detected);
    void askForDialect(const host::io::TextPreview& preview);
    void askToSkip(const host::io::ReadResult& result);
    void preview(host::io::ReadRequest request, DataUse use);
    void tellOpened(const host::io::ReadResult& result, const QStringList& look);
    std::function<void()> ofTheseData(const std::function<void()>& command);
    void tellOffers(const host::io::ReadOffers& offers, QStringList notes);
    void tellDetected(const QString& detected, QStringList notes,
                      const std::function<void()>& change);

    QWidget& m_window;
    NoticeBar& m_notice;
    DataOpener m_opener;
    std::function<bool()> m_mayReplace = [] { return true; };
};

} // namespace corvala::app
