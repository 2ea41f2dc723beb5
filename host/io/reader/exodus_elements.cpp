// SPDX-License-Identifier: BSD-3-Clause
#include "host/io/reader/exodus_elements.h"

#include <QFile>
#include <QStringList>

#include <vtk_exodusII.h>

#include <algorithm>
#include <vector>

namespace corvala::host::io::reader {

static bool isKnown(const QString& kind, int points, int count)
{
    static const QStringList starts =
        QStringLiteral("CIR SPH BAR TRU BEA EDG TRI QUA TET PYR WED HEX NSI NFA SUP")
            .split(QLatin1Char(' '));
    constexpr int kShells[] = {3, 4, 8, 9};
    const QString name = kind.toUpper();
    if (name.startsWith(QLatin1String("SHE")))
        return std::find(std::begin(kShells), std::end(kShells), points) != std::end(kShells);
    return starts.contains(name.left(3))
        || (name.startsWith(QLatin1String("STRAIGHT")) && points == 2)
        || (name.startsWith(QLatin1String("NULL")) && count == 0);
}

std::map<int, QString> unknownExodusElements(const QString& path)
{
    std::map<int, QString> result;
    int realSize = sizeof(double);
    int storedSize = 0;
    float version = 0.0F;
    const int file =
        ex_open(QFile::encodeName(path).constData(), EX_READ, &realSize, &storedSize, &version);
    if (file < 0)
        return result;
    std::vector<int> ids(
        static_cast<std::size_t>(std::max<int64_t>(ex_inquire_int(file, EX_INQ_ELEM_BLK), 0)));
    if (ids.empty() || ex_get_ids(file, EX_ELEM_BLOCK, ids.data()) < 0)
        ids.clear();
    for (std::size_t i = 0; i < ids.size(); ++i) {
        char kind[MAX_STR_LENGTH + 1] = {};
        int count = 0;
        int points = 0;
        int others[3] = {};
        const int status = ex_get_block(file, EX_ELEM_BLOCK, ids[i], kind, &count, &points,
                                        &others[0], &others[1], &others[2]);
        if (status >= 0 && !isKnown(QString::fromUtf8(kind), points, count))
            result[static_cast<int>(i)] = QString::fromUtf8(kind);
    }
    ex_close(file);
    return result;
}

} // namespace corvala::host::io::reader
