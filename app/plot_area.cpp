// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/plot_area.h"

#include "app/picture_output.h"
#include "plot/frame_view.h"

#include <QGuiApplication>
#include <QLabel>
#include <QVBoxLayout>

namespace corvala::app {

/// The canvases draw through an X server only.
static bool canShowCanvas()
{
    return QGuiApplication::platformName() == QLatin1String("xcb");
}

PlotArea::PlotArea(QWidget* parent)
    : QWidget(parent)
{
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    if (canShowCanvas()) {
        m_frameView = new plot::FrameView(this);
        layout->addWidget(m_frameView);
        return;
    }
    auto* note =
        new QLabel(tr("Plots are drawn on X screens only: start with QT_QPA_PLATFORM=xcb."), this);
    note->setAlignment(Qt::AlignCenter);
    note->setWordWrap(true);
    layout->addWidget(note);
}

QString PlotArea::paint(QPaintDevice& device, plot::Paper paper, const plot::WorkWatch& watch)
{
    return m_frameView ? m_frameView->paint(device, paper, watch)
                       : tr("the plot is drawn on an X screen only (QT_QPA_PLATFORM=xcb, for "
                            "example under xvfb-run)");
}

QString PlotArea::saveCanvas(const QString& file)
{
    const QSize shown = m_frameView ? m_frameView->size() : size();
    return writePicture(
        file, plot::PictureSize::ofPixels(shown, logicalDpiX()), plot::Paper::White,
        [this](QPaintDevice& device, plot::Paper paper) { return paint(device, paper); });
}

QImage PlotArea::picture(QString* error, const plot::WorkWatch& watch)
{
    const QSize shown = m_frameView ? m_frameView->size() : size();
    const auto draw = [&](QPaintDevice& device, plot::Paper paper) {
        return paint(device, paper, watch);
    };
    return plot::pictureImage(shown * devicePixelRatioF(), draw, error);
}

} // namespace corvala::app
