// SPDX-License-Identifier: BSD-3-Clause
#include "host/io/reader/exodus_elements.h"
#include "host/io/reader/exodus_names.h"
#include "host/io/reader/exodus_run.h"
#include "host/io/reader/formats.h"
#include "host/io/reader/hdf5_size.h"
#include "host/io/reader/netcdf_size.h"
#include "host/io/reader/selective_file.h"
#include "host/io/reader/vtk_messages.h"

#include <QFile>
#include <QFileInfo>
#include <QRegularExpression>

#include <vtkCompositeDataSet.h>
#include <vtkDataSet.h>
#include <vtkExodusIIReader.h>
#include <vtkInformation.h>
#include <vtkMultiBlockDataSet.h>

#include <cstring>
#include <map>
#include <set>

namespace corvala::host::io::reader {

static constexpr vtkExodusIIReader::ObjectType kKinds[] = {
    vtkExodusIIReader::ELEM_BLOCK, vtkExodusIIReader::SIDE_SET, vtkExodusIIReader::NODE_SET};

/// What the size of a file tells.
struct ExodusState
{
    std::int64_t timeCount = INT64_MAX; ///< that are whole
    std::map<int, ExodusElements> unknown; ///< by the index of their block
    std::vector<ReadMessage> notes;
};

/// The netCDF library reads what is missing at the end of a file as zeros, without an error.
static ExodusState requireMesh(const QString& path)
{
    ExodusState state;
    requireWholeHdf5(path);
    const std::optional<NetcdfSize> size = netcdfSize(path);
    const qint64 actual = QFileInfo(path).size();
    if (size && !size->isSound)
        throw ReadFailure(path,
                          QT_TRANSLATE_NOOP("ReadMessage", "its header is cut off or damaged"));
    if (size && !size->mayHave(actual))
        throw ReadFailure(path,
                          QT_TRANSLATE_NOOP("ReadMessage", "it is longer than its header says"));
    if (!size || actual >= size->bytes())
        return state;
    const std::int64_t whole = size->recordsIn(actual);
    if (whole <= 0)
        throw ReadFailure(
            path, QT_TRANSLATE_NOOP("ReadMessage", "it is cut off: %1 of %2 bytes are there"),
            {QString::number(actual), QString::number(size->bytes())});
    state.notes.emplace_back(
        QT_TRANSLATE_NOOP("ReadMessage",
                          "%1: %2 of %3 times were left out: it is cut off: %4 of %5 bytes are "
                          "there."),
        std::initializer_list<QString> {QFileInfo(path).fileName(),
                                        QString::number(size->records - whole),
                                        QString::number(size->records), QString::number(actual),
                                        QString::number(size->bytes())});
    state.timeCount = whole;
    return state;
}

static bool isUnknown(const ExodusState& state, int kind, int object)
{
    return kind == vtkExodusIIReader::ELEM_BLOCK && state.unknown.count(object) > 0;
}

static std::vector<FilePart> partsOf(vtkExodusIIReader* reader, const ExodusState& state)
{
    std::vector<FilePart> parts;
    const auto addArrays = [&](int kind) {
        for (int i = 0; i < reader->GetNumberOfObjectArrays(kind); ++i) {
            const std::string name = reader->GetObjectArrayName(kind, i);
            parts.push_back({QString::fromStdString(name), false, [=](bool isOn) {
                                 reader->SetObjectArrayStatus(kind, name.c_str(), isOn ? 1 : 0);
                             }});
        }
    };
    for (const auto kind : kKinds) {
        for (int i = 0; i < reader->GetNumberOfObjects(kind); ++i)
            if (!isUnknown(state, kind, i))
                parts.push_back(
                    {QString::fromUtf8(reader->GetObjectName(kind, i)).trimmed(), true,
                     [=](bool isOn) { reader->SetObjectStatus(kind, i, isOn ? 1 : 0); }});
        addArrays(kind);
    }
    addArrays(vtkExodusIIReader::NODAL);
    return parts;
}

/// VTK puts blocks and sets into groups by kind. Element blocks, which are what the file is about,
/// come without their group.
class ExodusFile : public SelectiveFile
{
public:
    ExodusFile(const QString& path, vtkSmartPointer<vtkExodusIIReader> reader,
               const ExodusState& state)
        : SelectiveFile(
            path, reader, [=] { return partsOf(reader, state); }, state.notes)
        , m_reader(reader)
        , m_timeCount(state.timeCount)
    {
    }

    std::vector<double> times() const override
    {
        std::vector<double> times = SelectiveFile::times();
        if (static_cast<std::int64_t>(times.size()) > m_timeCount)
            times.resize(static_cast<std::size_t>(m_timeCount));
        return times;
    }

    vtkSmartPointer<vtkDataObject> read(std::size_t timeIndex,
                                        const ProgressCall& progress) override
    {
        const vtkSmartPointer<vtkDataObject> tree = SelectiveFile::read(timeIndex, progress);
        auto* const groups = vtkMultiBlockDataSet::SafeDownCast(tree);
        if (!groups)
            return tree;
        auto result = vtkSmartPointer<vtkMultiBlockDataSet>::New();
        for (unsigned int i = 0; i < groups->GetNumberOfBlocks(); ++i) {
            auto* const group = vtkMultiBlockDataSet::SafeDownCast(groups->GetBlock(i));
            const char* const name = groups->GetMetaData(i)->Get(vtkCompositeDataSet::NAME());
            const bool areBlocks = group && name && std::strcmp(name, "Element Blocks") == 0;
            if (areBlocks) {
                append(*group, 0, group->GetNumberOfBlocks(), *result);
                continue;
            }
            if (group)
                noteEmptySets(*group);
            append(*groups, i, i + 1, *result);
        }
        return result;
    }

private:
    /// VTK leaves a set empty when it names elements or sides that do not exist, and without cells
    /// when it is of elements that cannot be read.
    void noteEmptySets(vtkMultiBlockDataSet& group)
    {
        for (unsigned int i = 0; i < group.GetNumberOfBlocks(); ++i) {
            auto* const set = vtkDataSet::SafeDownCast(group.GetBlock(i));
            const QString name =
                QString::fromUtf8(group.GetMetaData(i)->Get(vtkCompositeDataSet::NAME()));
            if (!set || set->GetNumberOfCells() > 0 || !hasEntries(name))
                continue;
            group.SetBlock(i, nullptr);
            if (m_emptySets.insert(name).second)
                m_notes.emplace_back(
                    QT_TRANSLATE_NOOP(
                        "ReadMessage",
                        "%1: the set \"%2\" was left out: what it names is not there."),
                    std::initializer_list<QString> {QFileInfo(path()).fileName(), ownName(name)});
        }
    }

    /// The number of a set without a name, for which VTK makes up one.
    static QString ownName(const QString& set)
    {
        static const QRegularExpression made(QStringLiteral("^Unnamed set ID: (\\d+).*"));
        return QString(set).replace(made, QStringLiteral("\\1"));
    }

    bool hasEntries(const QString& set) const
    {
        for (const auto kind : kKinds)
            for (int i = 0; i < m_reader->GetNumberOfObjects(kind); ++i)
                if (set == QString::fromUtf8(m_reader->GetObjectName(kind, i))
                    && m_reader->GetNumberOfEntriesInObject(kind, i) > 0)
                    return true;
        return false;
    }

    static void append(vtkMultiBlockDataSet& from, unsigned int first, unsigned int end,
                       vtkMultiBlockDataSet& to)
    {
        for (unsigned int i = first; i < end; ++i) {
            const unsigned int place = to.GetNumberOfBlocks();
            to.SetBlock(place, from.GetBlock(i));
            to.GetMetaData(place)->Copy(from.GetMetaData(i));
        }
    }

    vtkSmartPointer<vtkExodusIIReader> m_reader;
    std::int64_t m_timeCount;
    std::set<QString> m_emptySets; ///< that were noted
};

/// Blocks of other elements can be read. Throws ReadFailure when there are none, and for any error
/// but that of unknown elements.
static void noteUnknownElements(const QString& path, int blockCount, ExodusState& state)
{
    const ReadMessage error = VtkMessages::takeError();
    state.unknown = unknownExodusElements(path);
    if (state.unknown.empty() && !error.isEmpty())
        throw ReadFailure(path, error);
    for (const auto& [block, elements] : state.unknown) {
        const QString points = QString::number(elements.points);
        if (static_cast<int>(state.unknown.size()) == blockCount)
            throw ReadFailure(
                path,
                QT_TRANSLATE_NOOP("ReadMessage", "its elements (%1 of %2 points) cannot be read"),
                {elements.kind, points});
        state.notes.emplace_back(
            QT_TRANSLATE_NOOP("ReadMessage",
                              "%1: element block %2 was left out: its elements (%3 of %4 points) "
                              "cannot be read."),
            std::initializer_list<QString> {QFileInfo(path).fileName(), QString::number(block + 1),
                                            elements.kind, points});
    }
}

static std::unique_ptr<DataFile> openOne(const QString& path)
{
    ExodusState state = requireMesh(path);
    auto reader = vtkSmartPointer<vtkExodusIIReader>::New();
    reader->SetFileName(QFile::encodeName(path).constData());
    reader->ApplyDisplacementsOff();
    reader->UpdateInformation();
    noteUnknownElements(path, reader->GetNumberOfObjects(vtkExodusIIReader::ELEM_BLOCK), state);
    for (const auto kind : kKinds) {
        for (int i = 0; i < reader->GetNumberOfObjects(kind); ++i)
            reader->SetObjectStatus(kind, i, isUnknown(state, kind, i) ? 0 : 1);
        reader->SetAllArrayStatus(kind, 1);
    }
    reader->SetAllArrayStatus(vtkExodusIIReader::NODAL, 1);
    return std::make_unique<ExodusFile>(path, reader, state);
}

std::unique_ptr<DataFile> openExodus(const QString& path)
{
    const std::map<int, QStringList> stages = exodusRun(path);
    const bool isOne = stages.size() == 1 && stages.begin()->second.size() == 1;
    return isOne ? openOne(path) : openExodusRun(path, stages, openOne);
}

} // namespace corvala::host::io::reader
