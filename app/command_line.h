// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "host/io/data_reader.h"
#include "plot/common/picture.h"

#include <QString>
#include <QStringList>

namespace corvala::app {

/// What the user asked for on the command line.
struct Options
{
    QStringList files;
    QString demo; ///< name of embedded data; empty for none
    QString script;
    QString report;
    QString picture;
    QString document; ///< to be saved
    plot::PictureSize pictureSize;
    plot::Paper paper = plot::Paper::White;
    host::io::Plot3DLayout plot3d;
    host::io::TextDialect table;
    host::io::ReadChoices choices;
    bool help = false;
    bool version = false;

    /// The program does its work and ends, without waiting for the user.
    bool isBatch() const
    {
        return !script.isEmpty() || !report.isEmpty() || !picture.isEmpty() || !document.isEmpty();
    }

    /// The program works with the names of its commands and columns, which are English then.
    bool isScripted() const { return !script.isEmpty() || !report.isEmpty(); }
    /// What is wanted of the files.
    host::io::ReadRequest request() const;
};

/// Reads the arguments, without the name of the program. Empty on success, else what is wrong.
QString parseCommandLine(const QStringList& arguments, Options& options);

/// Needs a QCoreApplication.
QString usageText();

} // namespace corvala::app
