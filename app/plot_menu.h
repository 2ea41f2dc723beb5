// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "vocabulary/types.h"

#include <QObject>

class QMainWindow;
class QMenu;
class QPoint;

namespace corvala::plot {
class FrameView;
}

namespace corvala::app {

class ViewCommands;

/// What a right click in the plot offers for the zone or line there, and the menu key for the one
/// that is picked.
class PlotMenu : public QObject
{
    Q_OBJECT

public:
    /// The window, which owns the menu, the view and the commands must outlive it.
    PlotMenu(QMainWindow& window, plot::FrameView& view, const ViewCommands& views);

Q_SIGNALS:
    /// The object is to be picked; with `activate` its style is to be shown.
    void pickWanted(CvlInt64 number, bool activate);

private:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void open(CvlInt64 number, const QPoint& place);
    void addObjectCommands(QMenu& menu, CvlInt64 number);

    QMainWindow& m_window;
    const ViewCommands& m_views;
};

} // namespace corvala::app
