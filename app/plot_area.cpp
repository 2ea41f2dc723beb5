// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/plot_area.h"

#include "app/busy_cursor.h"
#include "app/picture_output.h"
#include "app/picture_size_dialog.h"
#include "plot/frame_view.h"

#include <QFileDialog>
#include <QGuiApplication>
#include <QLabel>
#include <QRegularExpression>
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

QString PlotArea::paint(QPaintDevice& device)
{
    return m_frameView ? m_frameView->paint(device)
                       : tr("the plot is drawn on an X screen only (QT_QPA_PLATFORM=xcb, for "
                            "example under xvfb-run)");
}

QString PlotArea::saveCanvas(const QString& file)
{
    const QSize shown = m_frameView ? m_frameView->size() : size();
    return writePicture(file, plot::PictureSize::ofPixels(shown, logicalDpiX()),
                        [this](QPaintDevice& device) { return paint(device); });
}

QString PlotArea::savePicture()
{
    QFileDialog chooser(this, tr("Save Picture"));
    chooser.setAcceptMode(QFileDialog::AcceptSave);
    chooser.setNameFilters(pictureFilters());
    const auto followFilter = [&chooser](const QString& filter) {
        static const QRegularExpression kFirst(QStringLiteral("\\*\\.(\\w+)"));
        chooser.setDefaultSuffix(kFirst.match(filter).captured(1));
    };
    connect(&chooser, &QFileDialog::filterSelected, &chooser, followFilter);
    followFilter(chooser.selectedNameFilter());
    chooser.selectFile(QStringLiteral("plot"));
    if (chooser.exec() != QDialog::Accepted)
        return {};
    const QString file = chooser.selectedFiles().value(0);
    const QString problem = pictureFormatProblem(file);
    if (!problem.isEmpty())
        return problem;
    PictureSizeDialog sizes(file, this);
    if (sizes.exec() != QDialog::Accepted)
        return {};
    const BusyCursor busy;
    return writePicture(file, sizes.chosenSize(),
                        [this](QPaintDevice& device) { return paint(device); });
}

} // namespace corvala::app
