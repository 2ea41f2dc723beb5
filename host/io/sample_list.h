// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include <QString>
#include <QStringList>

#include <vector>

namespace corvala::host::io {

/// Real data that comes with the program.
struct Sample
{
    QString title; ///< for a menu entry
    QStringList files; ///< absolute paths, to be opened together
    QString licence; ///< SPDX identifier
};

/// The samples in the order of the list `samples.json` in their folder; those whose files are
/// missing are left out. Empty when there is no list.
std::vector<Sample> sampleList();

/// Folder of the samples: where the program is installed, else in its sources. May be missing.
QString samplesFolder();

} // namespace corvala::host::io
