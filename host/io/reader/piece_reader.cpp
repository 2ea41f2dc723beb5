// SPDX-License-Identifier: BSD-3-Clause
#include "host/io/reader/piece_reader.h"

#include "host/io/reader/algorithm_file.h"
#include "host/io/reader/file_format.h"
#include "host/io/reader/formats.h"
#include "host/io/reader/legacy_layout.h"
#include "host/io/reader/legacy_reader.h"
#include "host/io/reader/mapped_file.h"
#include "host/io/reader/refined_levels.h"
#include "host/io/reader/sound_subset.h"
#include "host/io/reader/surface_file.h"
#include "host/io/reader/vtk_messages.h"
#include "host/io/reader/zone_check.h"

#include <QFile>
#include <QFileInfo>
#include <QScopeGuard>

#include <vtkCompositeDataSet.h>
#include <vtkDataArraySelection.h>
#include <vtkDataSet.h>
#include <vtkExecutive.h>
#include <vtkInformation.h>
#include <vtkMultiBlockDataSet.h>
#include <vtkXMLGenericDataObjectReader.h>
#include <vtkXMLReader.h>

#include <new>
#include <utility>

namespace corvala::host::io::reader {

PieceReader::PieceReader(const QString& mainFile)
    : m_mainFile(mainFile)
    , m_folder(QFileInfo(mainFile).dir())
{
}

QString PieceReader::shortName(const QString& path) const
{
    return m_folder.relativeFilePath(path);
}

void PieceReader::leaveOut(const ReadFailure& failure)
{
    const QString file = shortName(failure.file);
    const QString reason = failure.message.asArgument();
    if (time)
        notes.emplace_back(QT_TRANSLATE_NOOP("ReadMessage", "%1 was left out at time %2: %3."),
                           std::initializer_list<QString> {file, QString::number(*time), reason});
    else
        notes.emplace_back(QT_TRANSLATE_NOOP("ReadMessage", "%1 was left out: %2."),
                           std::initializer_list<QString> {file, reason});
}

void PieceReader::leaveOutArray(const QString& path, const QString& array,
                                const ReadFailure& failure)
{
    notes.emplace_back(
        QT_TRANSLATE_NOOP("ReadMessage", "%1: the values of %2 were left out: %3."),
        std::initializer_list<QString> {shortName(path), array, failure.message.asArgument()});
}

vtkSmartPointer<vtkDataObject> PieceReader::read(const QString& path, const ProgressCall& progress)
{
    requireReadable(path);
    try {
        return readOne(path, progress);
    } catch (const ReadFailure&) {
        VtkMessages::takeError(); // which the failure tells
        throw;
    } catch (const std::bad_alloc&) {
        VtkMessages::takeError();
        if (path == m_mainFile)
            throw;
        throw ReadFailure(
            path,
            QT_TRANSLATE_NOOP("ReadMessage", "it needs more memory than the limit, or is damaged"));
    }
}

vtkSmartPointer<vtkDataObject> PieceReader::readOne(const QString& path,
                                                    const ProgressCall& progress)
{
    switch (formatOf(path)) {
    case Format::LegacyVtk: return readLegacy(path, progress);
    case Format::Surface: return readSurface(path, progress);
    default: return readXml(path, progress);
    }
}

void PieceReader::noteLeftOver(const QString& path, const QString& reason)
{
    notes.emplace_back(
        QT_TRANSLATE_NOOP("ReadMessage", "%1: what cannot be read of it was left out: %2."),
        std::initializer_list<QString> {shortName(path), reason});
}

vtkSmartPointer<vtkDataObject> PieceReader::readSurface(const QString& path,
                                                        const ProgressCall& progress)
{
    const SurfaceData surface = reader::readSurface(path, progress);
    for (const auto& [array, reason] : surface.withoutValues)
        leaveOutArray(path, array, ReadFailure(path, reason));
    if (!surface.leftOver.isEmpty())
        noteLeftOver(path, surface.leftOver.asArgument());
    if (!surface.numberedNames.isEmpty())
        notes.emplace_back(QT_TRANSLATE_NOOP("ReadMessage", "%1: names are numbered: %2."),
                           std::initializer_list<QString> {
                               shortName(path), surface.numberedNames.join(QStringLiteral(", "))});
    return surface.data;
}

vtkSmartPointer<vtkDataObject> PieceReader::readLegacy(const QString& path,
                                                       const ProgressCall& progress)
{
    const MappedFile file(path);
    const LegacyLayout layout(file);
    const auto reader = legacyReader(path);
    if (!layout.isPlain() && layout.hasStructure())
        return readDamagedLegacy(layout, path, progress);
    try {
        return updated(path, *reader, progress);
    } catch (const ReadFailure& failure) {
        if (!layout.hasStructure())
            throw;
        auto result = readDamagedLegacy(layout, path, progress);
        noteLeftOver(path, failure.message.asArgument());
        return result;
    }
}

vtkSmartPointer<vtkDataObject> PieceReader::readDamagedLegacy(const LegacyLayout& layout,
                                                              const QString& path,
                                                              const ProgressCall& progress)
{
    const std::vector<std::size_t> arrays = layout.arrays();
    const auto readArrays = [&](const Parts& chosen) {
        std::vector<std::size_t> read;
        for (const std::size_t part : chosen)
            read.push_back(arrays[part]);
        return readLegacyText(path, layout.text(read), progress);
    };
    for (const auto& [array, failure] : layout.faults())
        leaveOutArray(path, array, failure);
    if (!layout.strayText().isEmpty())
        noteLeftOver(path, QLatin1Char('"') + layout.strayText() + QLatin1Char('"'));
    if (!layout.isKnown())
        noteLeftOver(
            path,
            ReadMessage(QT_TRANSLATE_NOOP("ReadMessage", "it is of an unknown kind")).asArgument());
    try {
        return readLegacyText(path, layout.text(arrays), progress);
    } catch (const ReadFailure&) {
        return readSoundSubset(arrays.size(), readArrays,
                               [&](std::size_t part, const ReadFailure& failure) {
                                   leaveOutArray(path, layout.nameOf(arrays[part]), failure);
                               });
    }
}

vtkSmartPointer<vtkDataObject> PieceReader::readXml(const QString& path,
                                                    const ProgressCall& progress)
{
    const XmlKind kind(path);
    if (!kind.isTree && !kind.isParallel)
        return readSerial(path, kind, progress);
    const QString canonical = QFileInfo(path).canonicalFilePath();
    if (m_open.contains(canonical))
        throw ReadFailure(path, QT_TRANSLATE_NOOP("ReadMessage", "it names itself as a part"));
    m_open << canonical;
    const auto close = qScopeGuard([this] { m_open.removeLast(); });
    return kind.isTree ? readTree(path, progress) : readParallel(path, kind, progress);
}

static void setFile(vtkXMLReader& reader, const QString& path, const XmlKind& kind)
{
    reader.SetFileName(QFile::encodeName(path).constData());
    reader.SetReadFromInputString(!kind.text.empty());
    reader.SetInputString(kind.text);
    reader.Modified(); // also for the same file again
}

static vtkSmartPointer<vtkXMLReader> xmlReader(const QString& path, const XmlKind& kind)
{
    auto reader = vtkXMLGenericDataObjectReader::CreateReader(kind.type, kind.isParallel);
    setFile(*reader, path, kind);
    return reader;
}

using ArrayName = std::pair<bool, std::string>; ///< of the points or the cells

static vtkDataArraySelection& selection(vtkXMLReader& reader, bool isOfPoints)
{
    return isOfPoints ? *reader.GetPointDataArraySelection() : *reader.GetCellDataArraySelection();
}

static std::vector<ArrayName> arraysOf(vtkXMLReader& reader)
{
    std::vector<ArrayName> result;
    for (const bool isOfPoints : {true, false})
        for (int i = 0; i < selection(reader, isOfPoints).GetNumberOfArrays(); ++i)
            result.emplace_back(isOfPoints, selection(reader, isOfPoints).GetArrayName(i));
    return result;
}

/// By a reader that may have read others of the type: to make one takes as long as a small file.
vtkSmartPointer<vtkDataObject> PieceReader::readWhole(const QString& path, const XmlKind& kind,
                                                      const ProgressCall& progress)
{
    if (!kind.extent.empty())
        return updated(path, *xmlReader(path, kind), progress, kind.extent);
    vtkSmartPointer<vtkXMLReader> reader = std::exchange(m_readers[kind.type], nullptr);
    if (reader)
        setFile(*reader, path, kind);
    else
        reader = xmlReader(path, kind);
    auto result = updated(path, *reader, progress);
    reader->GetExecutive()->SetOutputData(0, nullptr); // the next file shall not change it
    m_readers[kind.type] = reader; // not one that failed
    return result;
}

vtkSmartPointer<vtkDataObject> PieceReader::readSerial(const QString& path, const XmlKind& kind,
                                                       const ProgressCall& progress)
{
    try {
        return readWhole(path, kind, progress);
    } catch (const ReadFailure&) {
        const auto all = xmlReader(path, kind);
        all->UpdateInformation();
        VtkMessages::takeError(); // which the arrays give again
        const std::vector<ArrayName> arrays = arraysOf(*all);
        const auto readArrays = [&](const Parts& chosen) {
            const auto reader = xmlReader(path, kind);
            reader->UpdateInformation();
            for (const bool isOfPoints : {true, false})
                selection(*reader, isOfPoints).DisableAllArrays();
            for (const std::size_t part : chosen)
                selection(*reader, arrays[part].first).EnableArray(arrays[part].second.c_str());
            return updated(path, *reader, progress, kind.extent);
        };
        return readSoundSubset(
            arrays.size(), readArrays, [&](std::size_t part, const ReadFailure& failure) {
                leaveOutArray(path, QString::fromStdString(arrays[part].second), failure);
            });
    }
}

/// Throws ReadFailure unless all pieces are there and claim no more than they hold: VTK passes over
/// some that are not.
static void requirePieces(const QStringList& pieces)
{
    for (const QString& piece : pieces) {
        requireReadable(piece);
        XmlKind {piece};
    }
}

/// As one zone by VTK when all pieces are sound, else those that are as zones of their own.
vtkSmartPointer<vtkDataObject> PieceReader::readParallel(const QString& path, const XmlKind& kind,
                                                         const ProgressCall& progress)
{
    const QStringList pieces = piecesOf(path);
    try {
        requirePieces(pieces);
        if (!kind.isWhole)
            throw ReadFailure(path,
                              QT_TRANSLATE_NOOP("ReadMessage", "its pieces do not fill its grid"));
        auto data = updated(path, *xmlReader(path, kind), progress);
        auto* const zone = vtkDataSet::SafeDownCast(data);
        const ReadMessage fault = zone ? faultOf(*zone) : ReadMessage();
        if (!fault.isEmpty())
            throw ReadFailure(path, fault);
        return data;
    } catch (const ReadFailure& failure) {
        if (pieces.isEmpty())
            throw;
        PieceNode root;
        root.isBlock = true;
        for (const QString& piece : pieces) {
            root.children.emplace_back();
            root.children.back().word = "Piece ";
            root.children.back().index = root.children.size() - 1;
            root.children.back().file = piece;
        }
        const std::size_t noteCount = notes.size();
        auto zones = readNode(root, progress);
        if (notes.size() == noteCount) // else what is wrong with the pieces is told
            notes.emplace_back(
                QT_TRANSLATE_NOOP("ReadMessage", "%1: its pieces are zones of their own: %2."),
                std::initializer_list<QString> {shortName(path), failure.message.asArgument()});
        return zones;
    }
}

vtkSmartPointer<vtkDataObject> PieceReader::readTree(const QString& path,
                                                     const ProgressCall& progress)
{
    const PieceTree tree = pieceTree(path);
    if (tree.isCutOff && tree.root.children.empty())
        throw ReadFailure(path, QT_TRANSLATE_NOOP("ReadMessage", "it is cut off"));
    if (tree.isCutOff)
        notes.emplace_back(
            QT_TRANSLATE_NOOP("ReadMessage", "%1 has no end; the files that it lists were read."),
            std::initializer_list<QString> {shortName(path)});
    auto data = readNode(tree.root, progress);
    if (tree.hasLevels)
        hideRefinedCells(*vtkMultiBlockDataSet::SafeDownCast(data));
    return data;
}

/// Throws the first failure when no file in a block that names some can be read.
vtkSmartPointer<vtkDataObject> PieceReader::readNode(const PieceNode& node,
                                                     const ProgressCall& progress)
{
    if (!node.isBlock)
        return node.file.isEmpty() ? nullptr : read(node.file, progress);
    auto block = vtkSmartPointer<vtkMultiBlockDataSet>::New();
    std::vector<ReadFailure> failures;
    unsigned int position = 0;
    const auto count = static_cast<double>(node.children.size());
    for (const PieceNode& child : node.children) {
        const double before = position + static_cast<double>(failures.size());
        try {
            block->SetBlock(
                position, readNode(child, [&](double part) { progress((before + part) / count); }));
        } catch (const ReadFailure& failure) {
            failures.push_back(failure);
            continue;
        }
        const QString number = QLatin1String(child.word) + QString::number(child.index + 1);
        if (!child.name.isEmpty() || node.children.size() > 1 || child.index > 0)
            block->GetMetaData(position)->Set(
                vtkCompositeDataSet::NAME(),
                (child.name.isEmpty() ? number : child.name).toUtf8().constData());
        ++position;
    }
    if (!failures.empty() && position == 0)
        throw failures.front();
    for (const ReadFailure& failure : failures)
        leaveOut(failure);
    return block;
}

} // namespace corvala::host::io::reader
