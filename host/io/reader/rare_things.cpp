// SPDX-License-Identifier: BSD-3-Clause
#include "host/io/reader/rare_things.h"

#include "host/io/reader/cgns_tree.h"
#include "host/io/reader/file_format.h"

#include <QFile>
#include <QStringList>

#include <vtk_cgns.h>

// clang-format off
#include VTK_CGNS(cgnslib.h)
// clang-format on

#include <algorithm>
#include <iterator>
#include <utility>

namespace corvala::host::io::reader {

static constexpr qint64 kMostText = 1 << 26;

/// The kinds of elements other than those with corners only.
static QStringList rareInCgns(const QString& path)
{
    static constexpr int kUsual[] = {CGNS_ENUMV(NODE),    CGNS_ENUMV(BAR_2),   CGNS_ENUMV(TRI_3),
                                     CGNS_ENUMV(QUAD_4),  CGNS_ENUMV(TETRA_4), CGNS_ENUMV(PYRA_5),
                                     CGNS_ENUMV(PENTA_6), CGNS_ENUMV(HEXA_8)};
    QStringList found;
    const CgnsTree file(path);
    if (!file.isOpen())
        return found;
    for (const CgnsTree::Node& base : file.children(file.root(), "CGNSBase_t"))
        for (const CgnsTree::Node& zone : file.children(base.id, "Zone_t"))
            for (const CgnsTree::Node& section : file.children(zone.id, "Elements_t"))
                for (const int kind : file.integers(section.id)) {
                    const bool isKind = kind > 0 && kind < NofValidElementTypes;
                    if (!std::count(std::begin(kUsual), std::end(kUsual), kind))
                        found << (isKind ? QString::fromLatin1(ElementTypeName[kind])
                                         : QString::number(kind));
                    break; // behind the kind stands the number of outer elements
                }
    return found;
}

/// By words that stand for it in files of VTK.
static QStringList rareInVtk(const QString& path)
{
    static const std::pair<const char*, const char*> kWords[] = {
        {"AMR", "AMR boxes"},
        {"HyperTreeGrid", "hyper tree grids"},
        {"HigherOrderDegrees", "Lagrange or Bezier cells"},
        {"RationalWeights", "rational Bezier cells"},
        {"Name=\"faces\"", "polyhedra"},
        {"type=\"Bit\"", "arrays of bits"},
        {"vtkvariant", "arrays of variants"},
    };
    QFile file(path);
    QStringList found;
    const QByteArray text = file.open(QIODevice::ReadOnly) ? file.read(kMostText) : QByteArray();
    for (const auto& [word, meaning] : kWords)
        if (text.contains(word))
            found << QString::fromLatin1(meaning);
    return found;
}

QString rareThingsIn(const QString& path)
{
    const Format format = formatOf(path);
    const bool isOfVtk = format == Format::LegacyVtk || format == Format::XmlVtk;
    QStringList found = format == Format::Cgns ? rareInCgns(path)
        : isOfVtk                              ? rareInVtk(path)
                                               : QStringList();
    found.removeDuplicates();
    return found.join(QStringLiteral(", "));
}

} // namespace corvala::host::io::reader
