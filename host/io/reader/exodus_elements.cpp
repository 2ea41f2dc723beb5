// SPDX-License-Identifier: BSD-3-Clause
#include "host/io/reader/exodus_elements.h"

#include <QFile>

#include <vtk_exodusII.h>

#include <algorithm>
#include <iterator>
#include <vector>

namespace corvala::host::io::reader {

/// A kind by the start of its name, with the numbers of points that it may have; none for any.
struct KnownElements
{
    const char* start;
    std::vector<int> points;
};

static bool isKnown(const ExodusElements& elements)
{
    static const KnownElements known[] = {{"CIR", {1}},         {"SPH", {1}},
                                          {"BAR", {2, 3}},      {"TRU", {2, 3}},
                                          {"BEA", {2, 3}},      {"EDG", {2, 3}},
                                          {"STRAIGHT", {2}},    {"TRI", {3, 6}},
                                          {"QUA", {4, 8, 9}},   {"SHE", {3, 4, 8}},
                                          {"TET", {4, 10, 15}}, {"PYR", {5, 13}},
                                          {"HEX", {8, 20, 27}}, {"WED", {6, 15, 18, 21}},
                                          {"NSI", {}},          {"NFA", {}},
                                          {"SUP", {}}};
    const QString name = elements.kind.toUpper();
    const auto* const found =
        std::find_if(std::begin(known), std::end(known), [&](const KnownElements& each) {
            return name.startsWith(QLatin1String(each.start));
        });
    if (found == std::end(known))
        return name.startsWith(QLatin1String("NULL")) && elements.count == 0;
    const std::vector<int>& points = found->points;
    return points.empty() || elements.count == 0
        || std::find(points.begin(), points.end(), elements.points) != points.end();
}

std::vector<ExodusElements> exodusElements(const QString& path)
{
    std::vector<ExodusElements> result;
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
    for (const int id : ids) {
        char kind[MAX_STR_LENGTH + 1] = {};
        int others[3] = {};
        ExodusElements elements;
        if (ex_get_block(file, EX_ELEM_BLOCK, id, kind, &elements.count, &elements.points,
                         &others[0], &others[1], &others[2])
            >= 0)
            elements.kind = QString::fromUtf8(kind);
        result.push_back(elements);
    }
    ex_close(file);
    return result;
}

std::map<int, ExodusElements> unknownExodusElements(const QString& path)
{
    std::map<int, ExodusElements> result;
    int block = 0;
    for (const ExodusElements& elements : exodusElements(path)) {
        if (!elements.kind.isNull() && !isKnown(elements))
            result[block] = elements;
        ++block;
    }
    return result;
}

} // namespace corvala::host::io::reader
