// SPDX-License-Identifier: BSD-3-Clause
#include "host/io/reader/rare_things.h"

#include "host/io/reader/cgns_tree.h"
#include "host/io/reader/exodus_elements.h"
#include "host/io/reader/file_format.h"

#include <QCoreApplication>
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

/// The kinds of elements other than those with corners only.
static QStringList rareInExodus(const QString& path)
{
    static const std::pair<const char*, int> kUsual[] = {
        {"BAR", 2}, {"TRU", 2}, {"BEA", 2}, {"EDG", 2}, {"TRI", 3}, {"SHE", 3},
        {"SHE", 4}, {"QUA", 4}, {"TET", 4}, {"PYR", 5}, {"WED", 6}, {"HEX", 8}};
    QStringList found;
    for (const ExodusElements& elements : exodusElements(path))
        if (std::none_of(std::begin(kUsual), std::end(kUsual), [&](const auto& usual) {
                return elements.points == usual.second
                    && elements.kind.toUpper().startsWith(QLatin1String(usual.first));
            }))
            found << QStringLiteral("%1 (%2)").arg(elements.kind).arg(elements.points);
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
    QStringList found;
    const QByteArray text = firstBytes(path, kMostText);
    for (const auto& [word, meaning] : kWords)
        if (text.contains(word))
            found << QString::fromLatin1(meaning);
    return found;
}

static QStringList rareIn(Format format, const QString& path)
{
    switch (format) {
    case Format::Cgns: return rareInCgns(path);
    case Format::Exodus: return rareInExodus(path);
    case Format::LegacyVtk:
    case Format::XmlVtk: return rareInVtk(path);
    default: return {};
    }
}

/// Whether what the file holds cannot be seen in it.
static bool isEncoded(Format format, const QString& path)
{
    const QByteArray text = format == Format::XmlVtk ? firstBytes(path, kMostText) : QByteArray();
    return text.contains("format=\"binary\"") || text.contains("format=\"appended\"");
}

static const char* nameOf(Format format)
{
    switch (format) {
    case Format::LegacyVtk: return "legacy VTK";
    case Format::XmlVtk: return "VTK XML";
    case Format::Surface: return "STL, PLY, OBJ";
    case Format::Cgns: return "CGNS";
    case Format::EnSight: return "EnSight";
    case Format::Exodus: return "Exodus";
    case Format::Foam: return "OpenFOAM";
    case Format::Plot3D: return "Plot3D";
    default: return nullptr;
    }
}

ReadMessage reasonOfCrash(const QString& path)
{
    const Format format = formatOf(path);
    const char* const name = nameOf(format);
    if (!name)
        return {};
    QStringList found = rareIn(format, path);
    found.removeDuplicates();
    if (found.isEmpty() && isEncoded(format, path))
        return ReadMessage(
            QT_TRANSLATE_NOOP(
                "ReadMessage",
                "VTK's reader for %1 failed: the file is damaged, or holds something that "
                "cannot be read; its arrays are encoded, so that it cannot be told what"),
            {QString::fromLatin1(name)});
    if (found.isEmpty())
        return ReadMessage(QT_TRANSLATE_NOOP("ReadMessage",
                                             "VTK's reader for %1 failed; the file, or one that it "
                                             "names, holds something that it cannot read, or is "
                                             "damaged"),
                           {QString::fromLatin1(name)});
    return ReadMessage(
        QT_TRANSLATE_NOOP("ReadMessage",
                          "VTK's reader for %1 failed, perhaps by what is rare in the file: %2"),
        {QString::fromLatin1(name), found.join(QStringLiteral(", "))});
}

} // namespace corvala::host::io::reader
