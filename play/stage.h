// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "host/operations/operation.h"

#include <QString>

#include <memory>

class QWidget;

namespace corvala::play {

/// What a script needs of the program that plays it, beside the dialog and the document.
class Stage
{
public:
    virtual ~Stage() = default;

    /// The main window: the parent of the dialog.
    virtual QWidget& window() = 0;

    /// Reads files into the active frame and waits. Empty on success, else the reason.
    virtual QString openFiles(const host::DataOrigin& origin) = 0;

    /// Reads data from files and waits; null, with the reason in `problem`, when that fails.
    virtual std::shared_ptr<host::DataSet> readData(const host::DataOrigin& origin,
                                                    QString& problem) = 0;

    /// Adds data that were read to those of the active frame.
    virtual host::Outcome add(const host::AddData& addition) = 0;

    /// Writes the plot as it is on the screen to a file, in the format that its ending names. Empty
    /// on success, else a text that names the file and the reason.
    virtual QString saveCanvas(const QString& file) = 0;
};

} // namespace corvala::play
