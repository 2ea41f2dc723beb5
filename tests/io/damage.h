// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "tests/io/io_support.h"

#include <QMap>

#include <vector>

namespace corvala::host::io {

/// A sound file that a test writes, and where it can be damaged.
struct MadeFile
{
    QByteArray content;
    std::vector<int> sections; ///< where lines, lists and the like begin; may be empty
    std::vector<std::pair<int, QByteArray>> counts; ///< places and what to write there instead
};

/// Files by their names, from which data are opened by the first of `opened`.
struct MadeData
{
    QMap<QString, MadeFile> files;
    QStringList opened;
};

/// A text file, whose sections are its lines.
MadeFile textFile(const QByteArray& content);
/// A binary file, whose sections nobody knows.
MadeFile plainFile(const QByteArray& content);

/// A way to damage a file.
struct Damage
{
    QString name;
    std::function<QByteArray(const MadeFile&)> apply; ///< null for a file that is missing
};

/// Cuts at sections and inside them, sections that are missing or repeated, counts that are
/// altered.
std::vector<Damage> damages();

/// All that is shown of data: the points, cells and values of each zone at each time.
class Shown
{
public:
    /// Opens all of the files in the folder twice, at once.
    Shown(const DataFolder& folder, const QStringList& files);

    /// What is wrong with what is shown of damaged data: empty where all of it is as in the sound
    /// data, or left out with a note or an error that names it or one of the files.
    QString problemAgainst(const Shown& sound, const QStringList& damagedFiles) const;

    QString error;
    QStringList notes;

private:
    void add(const DataSet& data);

    QMap<QString, QByteArray> m_values; ///< by "variable|place|zone@time"
    bool m_isTwiceTheSame = true;
};

} // namespace corvala::host::io
