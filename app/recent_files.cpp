// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/recent_files.h"

#include "app/user_settings.h"

namespace corvala::app {

static constexpr int kMostEntries = 10;
static const char* const kKey = "recentFiles";

/// Anything else that stands in the settings counts as nothing.
QList<QStringList> recentFiles()
{
    QList<QStringList> entries;
    for (const QVariant& entry : userSettings().value(QLatin1String(kKey)).toList()) {
        const QStringList files = entry.toStringList();
        if (!files.isEmpty() && entries.size() < kMostEntries)
            entries << files;
    }
    return entries;
}

void rememberFiles(const QStringList& files)
{
    QList<QStringList> entries = recentFiles();
    entries.removeAll(files);
    entries.prepend(files);
    QVariantList values;
    for (const QStringList& entry : entries.mid(0, kMostEntries))
        values << QVariant(entry);
    userSettings().setValue(QLatin1String(kKey), values);
}

} // namespace corvala::app
