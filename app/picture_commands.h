// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QObject>

class QWidget;

namespace corvala::app {

class PlotArea;

/// Copies the plot, and writes it to files that the user chooses.
class PictureCommands : public QObject
{
    Q_OBJECT

public:
    /// Asks in dialogs over the window. The plot must outlive the commands.
    PictureCommands(QWidget& window, PlotArea& plot);

    void copy();
    void save();

Q_SIGNALS:
    void told(const QString& text); ///< what was done
    void failed(const QString& problem);

private:
    /// Empty when the user chose none.
    QString askForFile();

    QWidget& m_window;
    PlotArea& m_plot;
};

} // namespace corvala::app
