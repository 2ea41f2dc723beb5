// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/plot_area.h"

#include "host/document/document.h"
#include "play/picture_file.h"
#include "plot/frame_view.h"
#include "plot/render.h"

#include <QFileDialog>
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

QImage PlotArea::image(QString* error)
{
    if (m_frameView)
        return m_frameView->render(m_frameView->size(), error);
    *error = tr("the plot is drawn on an X screen only (QT_QPA_PLATFORM=xcb, for example under "
                "xvfb-run)");
    return {};
}

QString PlotArea::savePicture()
{
    QFileDialog dialog(this, tr("Save Picture"), {}, tr("Pictures (*.png *.jpg *.bmp)"));
    dialog.setAcceptMode(QFileDialog::AcceptSave);
    dialog.setDefaultSuffix(QStringLiteral("png"));
    dialog.selectFile(QStringLiteral("plot.png"));
    if (dialog.exec() != QDialog::Accepted)
        return {};
    QString error;
    const QImage picture = image(&error);
    return picture.isNull() ? error : play::writePicture(picture, dialog.selectedFiles().value(0));
}

} // namespace corvala::app
