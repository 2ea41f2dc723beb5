// SPDX-License-Identifier: BSD-3-Clause
#include "host/io/reader/plot3d_files.h"

#include "host/io/reader/file_format.h"
#include "host/io/reader/formats.h"
#include "host/io/reader/read_failure.h"

#include <QDir>
#include <QFileInfo>

#include <algorithm>

namespace corvala::host::io::reader {

enum class Role { Grid, Solution, Function };

/// File endings of each role, best first. Where all files end in the same way, the base name says
/// what a file is: flowxyz.bin, flowq.bin, flowf.bin.
static QStringList endings(Role role)
{
    static const char* const lists[] = {"xyz x xy p3d grd g fmt p3dfmt", "q", "f fun"};
    return QString::fromLatin1(lists[static_cast<int>(role)]).split(QLatin1Char(' '));
}

static QString word(Role role)
{
    static const char* const words[] = {"xyz", "q", "f"};
    return QString::fromLatin1(words[static_cast<int>(role)]);
}

/// The neighbour of this name, if need be in other letter cases; empty when there is none.
static QString named(const QStringList& neighbours, const QString& name)
{
    if (neighbours.contains(name))
        return name;
    const auto found =
        std::find_if(neighbours.begin(), neighbours.end(), [&](const QString& neighbour) {
            return neighbour.compare(name, Qt::CaseInsensitive) == 0;
        });
    return found == neighbours.end() ? QString() : *found;
}

/// The file of a role beside another file that has the same name but for what tells roles apart.
static QString sibling(const QString& path, Role own, Role wanted)
{
    const QFileInfo info(path);
    const QStringList neighbours = info.dir().entryList(QDir::Files);
    QStringList names;
    for (const QString& ending : endings(wanted))
        names << info.completeBaseName() + QLatin1Char('.') + ending;
    const QString base = info.completeBaseName();
    if (base.endsWith(word(own), Qt::CaseInsensitive))
        names << base.chopped(word(own).size()) + word(wanted) + QLatin1Char('.') + info.suffix();
    for (const QString& name : names) {
        const QString found = named(neighbours, name);
        if (!found.isEmpty() && found != info.fileName())
            return info.dir().absoluteFilePath(found);
    }
    return {};
}

static Role roleOf(const QString& path)
{
    const QFileInfo info(path);
    for (const Role role : {Role::Solution, Role::Function}) {
        if (endings(role).contains(info.suffix(), Qt::CaseInsensitive))
            return role;
        const bool isNamedSo = info.completeBaseName().endsWith(word(role), Qt::CaseInsensitive);
        if (isNamedSo && !endings(Role::Grid).contains(info.suffix(), Qt::CaseInsensitive)
            && !sibling(path, role, Role::Grid).isEmpty())
            return role;
    }
    return Role::Grid;
}

static Plot3DSeries seriesOf(const QString& grid, const Plot3DLayout& wanted)
{
    if (firstBytes(grid, 64).trimmed().startsWith('{'))
        return readPlot3DIndex(grid, wanted);
    Plot3DStep step;
    step.grid = grid;
    step.solution = sibling(grid, Role::Grid, Role::Solution);
    step.function = sibling(grid, Role::Grid, Role::Function);
    step.areGuessed = true;
    return {grid, {step}, wanted, {}};
}

std::vector<Plot3DSeries> groupPlot3D(const QStringList& paths, const Plot3DLayout& wanted)
{
    QStringList grids;
    for (const QString& path : paths) {
        requireReadable(path);
        const Role role = roleOf(path);
        const QString grid = role == Role::Grid ? path : sibling(path, role, Role::Grid);
        if (grid.isEmpty())
            throw ReadFailure(path,
                              QT_TRANSLATE_NOOP("ReadMessage",
                                                "it is a Plot3D solution or function file, and no "
                                                "grid file of that name is beside it"));
        if (!grids.contains(grid))
            grids << grid;
    }
    std::vector<Plot3DSeries> result;
    for (const QString& grid : grids)
        result.push_back(seriesOf(grid, wanted));
    for (const QString& path : paths)
        for (Plot3DSeries& series : result)
            for (Plot3DStep& step : series.steps)
                if (step.solution == path || step.function == path)
                    step.areGuessed = false;
    return result;
}

} // namespace corvala::host::io::reader
