// SPDX-License-Identifier: BSD-3-Clause
#include "host/storage/moved_data.h"

#include <QDir>
#include <QFileInfo>

namespace corvala::host::storage {

QStringList missingFiles(const StoredDocument& document)
{
    QStringList missing;
    for (const StoredFrame& frame : document.frames)
        for (const DataOrigin& origin : frame.data)
            for (const std::string& file : origin.files)
                if (const QString name = QString::fromStdString(file); !QFileInfo::exists(name))
                    missing << name;
    missing.removeDuplicates();
    return missing;
}

/// The file in the folder, with as much of its path as leads to one; empty when nothing does.
static QString foundIn(const QDir& folder, const QString& file)
{
    const QStringList parts = file.split(QLatin1Char('/'), Qt::SkipEmptyParts);
    for (int skipped = 0; skipped < parts.size(); ++skipped) {
        const QString name = folder.absoluteFilePath(parts.mid(skipped).join(QLatin1Char('/')));
        if (QFileInfo::exists(name))
            return name;
    }
    return {};
}

void lookIn(const QString& folder, StoredDocument& document)
{
    for (StoredFrame& frame : document.frames)
        for (DataOrigin& origin : frame.data)
            for (std::string& file : origin.files) {
                const QString name = QString::fromStdString(file);
                const QString found =
                    QFileInfo::exists(name) ? QString() : foundIn(QDir(folder), name);
                if (!found.isEmpty())
                    file = found.toStdString();
            }
}

} // namespace corvala::host::storage
