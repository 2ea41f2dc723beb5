// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include <QImage>
#include <QStringList>

class QWidget;

namespace corvala::play {

/// What a script needs of the program that plays it, beside the dialog and the document.
class Stage
{
public:
    virtual ~Stage() = default;

    /// The main window: the parent of the dialog.
    virtual QWidget& window() = 0;

    /// Reads the files into the active frame and waits; `table` tells how text is read, as
    /// DataOrigin::table does. Empty on success, else the reason.
    virtual QString openFiles(const QStringList& files, const QString& table) = 0;

    /// The plot as it is on the screen. Null, with the reason in `error`, when it cannot be drawn.
    virtual QImage canvasImage(QString* error) = 0;
};

} // namespace corvala::play
