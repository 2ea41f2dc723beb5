// SPDX-License-Identifier: BSD-3-Clause
#include "host/io/process_vitals.h"

#include <QFile>

namespace corvala::host::io {

static QByteArray contentsOf(qint64 processId, const char* name)
{
    QFile file(QStringLiteral("/proc/%1/%2").arg(processId).arg(QLatin1String(name)));
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

QByteArray vitalsOf(qint64 processId)
{
    QByteArray vitals = contentsOf(processId, "statm");
    for (const QByteArray& count : contentsOf(processId, "io").split('\n'))
        if (count.startsWith("rchar") || count.startsWith("write_bytes"))
            vitals += count;
    return vitals;
}

} // namespace corvala::host::io
