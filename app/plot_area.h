// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "plot/common/picture.h"
#include "plot/common/work_watch.h"

#include <QWidget>

namespace corvala::plot {
class FrameView;
}

namespace corvala::app {

/// The middle of the main window: the canvas of the active frame, or a note where this screen
/// cannot show one.
class PlotArea : public QWidget
{
    Q_OBJECT

public:
    explicit PlotArea(QWidget* parent = nullptr);

    /// Null where no canvas can be shown.
    plot::FrameView* frameView() const { return m_frameView; }

    /// Writes the plot as it is on the screen, as writePicture.
    QString saveCanvas(const QString& file);

    /// The plot as it is on the screen; null, with the reason, where it cannot be drawn.
    QImage picture(QString* error, const plot::WorkWatch& watch);
    /// As PaintPicture; the watch may end it.
    QString paint(QPaintDevice& device, plot::Paper paper, const plot::WorkWatch& watch = {});

    QSize sizeHint() const override { return {900, 700}; }

private:
    plot::FrameView* m_frameView = nullptr; // not owned
};

} // namespace corvala::app
