// SPDX-License-Identifier: BSD-3-Clause
#include "host/io/reader/data_set_builder.h"

#include "host/io/reader/channel.h"
#include "host/io/reader/clean_zone.h"
#include "host/io/reader/file_format.h"
#include "host/io/reader/read_failure.h"
#include "host/io/reader/vector_proposal.h"
#include "host/io/reader/vtk_messages.h"
#include "host/io/reader/vtk_words.h"
#include "host/io/reader/zone_check.h"

#include <QDir>
#include <QFileInfo>

#include <algorithm>
#include <cmath>
#include <numeric>

namespace corvala::host::io::reader {

/// Z range of planar data against their extent: rounding in a file must not make a plane thick.
static constexpr double kFlatness = 1e-6;
static constexpr double kPartOfReading = 0.5; ///< of the progress; the rest is handing over
static constexpr std::int64_t kBytesOfPoint = 3 * sizeof(float);

DataSetBuilder::DataSetBuilder(const QString& folder, Channel& channel, std::int64_t memoryBytes)
    : m_channel(channel)
    , m_mostPoints(memoryBytes / kBytesOfPoint)
    , m_writer(folder)
{
}

/// The file's name without its ending, or that of its case where all files have the same name.
static std::string baseName(const DataFile& file)
{
    const QFileInfo info(file.path());
    if (!file.name().isEmpty())
        return file.name().toStdString();
    if (info.fileName() == QLatin1String("controlDict"))
        return QFileInfo(info.path()).dir().dirName().toStdString();
    const QString base = nameWithoutEnding(file.path());
    return (base.isEmpty() ? info.dir().dirName() : base).toStdString();
}

/// Shortest names of the files that tell them apart: without the ending where that is enough.
static std::vector<std::string> distinctNames(const std::vector<std::unique_ptr<DataFile>>& files)
{
    std::map<std::string, int> uses;
    for (const auto& file : files)
        ++uses[baseName(*file)];
    std::vector<std::string> result;
    for (const auto& file : files) {
        const std::string base = baseName(*file);
        const bool isUnique = uses[base] == 1;
        result.push_back(isUnique ? base : QFileInfo(file->path()).fileName().toStdString());
    }
    return result;
}

static void throwPendingError(const DataFile& file)
{
    const ReadMessage error = VtkMessages::takeError();
    if (!error.isEmpty())
        throw ReadFailure(file.path(), error);
}

DataSetIndex DataSetBuilder::build(const std::vector<std::unique_ptr<DataFile>>& files)
{
    m_fileCount = files.size();
    const std::vector<std::string> names = distinctNames(files);
    for (m_fileNumber = 0; m_fileNumber < m_fileCount; ++m_fileNumber)
        readFile(*files[m_fileNumber], names[m_fileNumber]);
    m_index.data.title = names.front();
    m_index.data.isPlanar = m_bounds.GetLength(2) <= kFlatness * m_bounds.GetMaxLength();
    m_index.data.surfacesEncloseVolumes = m_enclosure.isClosed();
    numberZones();
    noteOmissions();
    m_writer.finish();
    m_index.data.variables = m_variables.variables(m_hasCoordinates);
    for (Variable& variable : m_index.data.variables)
        for (const auto& file : files)
            if (variable.kind == VariableKind::Number && !variable.isCoordinate())
                variable.kind = file->kindOf(variable.array);
    m_index.data.vectorVariables = proposedVector(m_index.data.variables);
    m_index.data.contourVariables = m_variables.proposeContours(m_hasCoordinates);
    std::stable_partition(m_index.data.contourVariables.begin(),
                          m_index.data.contourVariables.end(), [&](int number) {
                              return std::none_of(
                                  files.begin(), files.end(), [&](const auto& file) {
                                      return file->isPlace(m_index.data.variable(number).array);
                                  });
                          });
    return std::move(m_index);
}

void DataSetBuilder::readFile(DataFile& file, const std::string& fileName)
{
    const std::size_t firstBlock = m_blocks.size();
    m_blockOfKey.clear();
    m_fault.reset();
    const std::vector<double> times = file.times();
    for (const std::size_t timeIndex : timesInOrder(file, times))
        readTime(file, times, timeIndex);
    const bool hasZones =
        std::any_of(m_blocks.begin() + static_cast<std::ptrdiff_t>(firstBlock), m_blocks.end(),
                    [](const Block& block) { return !block.zones.empty(); });
    if (!hasZones && m_fault)
        throw ReadFailure(*m_fault);
    if (!hasZones)
        throw ReadFailure(file.path(),
                          QT_TRANSLATE_NOOP("ReadMessage", "there are no zones with points in it"));
    nameZones(firstBlock, fileName);
    const std::vector<ReadMessage> notes = file.notes();
    m_index.notes.insert(m_index.notes.end(), notes.begin(), notes.end());
    if (!m_index.plot3d)
        m_index.plot3d = file.plot3dLayout();
    noteDialect(file);
    m_index.offers.boundaryPatches += file.unreadPatches();
    m_hasCoordinates = m_hasCoordinates || file.hasCoordinates();
}

/// The first dialect is told with the data; of others, a few are noted.
void DataSetBuilder::noteDialect(const DataFile& file)
{
    constexpr int kMostNoted = 3;
    const std::optional<TextDialect> dialect = file.textDialect();
    if (!m_index.text)
        m_index.text = dialect;
    else if (dialect && describe(*dialect) != describe(*m_index.text)
             && ++m_otherDialects <= kMostNoted)
        m_index.notes.emplace_back(
            QT_TRANSLATE_NOOP("ReadMessage", "%1 was read in another way: %2."),
            std::initializer_list<QString> {QFileInfo(file.path()).fileName(), describe(*dialect)});
}

/// Indices of the times, ascending; of equal times only the first, as VTK tells times by value.
std::vector<std::size_t> DataSetBuilder::timesInOrder(const DataFile& file,
                                                      const std::vector<double>& times)
{
    if (!std::all_of(times.begin(), times.end(), [](double time) { return std::isfinite(time); }))
        throw ReadFailure(file.path(),
                          QT_TRANSLATE_NOOP("ReadMessage", "a solution time is not a number"));
    std::vector<std::size_t> order(std::max<std::size_t>(times.size(), 1));
    std::iota(order.begin(), order.end(), 0);
    std::stable_sort(order.begin(), order.end(),
                     [&](std::size_t a, std::size_t b) { return times[a] < times[b]; });
    const auto last = std::unique(order.begin(), order.end(), [&](std::size_t a, std::size_t b) {
        return !(times[a] < times[b]);
    });
    if (last != order.end())
        m_index.notes.emplace_back(
            QT_TRANSLATE_NOOP("ReadMessage", "%1: some times occur twice; the first is shown."),
            std::initializer_list<QString> {file.path()});
    order.erase(last, order.end());
    return order;
}

static ReadMessage progressText(const DataFile& file, std::size_t timeIndex, std::size_t timeCount)
{
    const QString name = QFileInfo(file.path()).fileName();
    if (timeCount < 2)
        return ReadMessage(QT_TRANSLATE_NOOP("ReadMessage", "Reading %1"), {name});
    return ReadMessage(QT_TRANSLATE_NOOP("ReadMessage", "Reading %1, time %2 of %3"),
                       {name, QString::number(timeIndex + 1), QString::number(timeCount)});
}

void DataSetBuilder::readTime(DataFile& file, const std::vector<double>& times,
                              std::size_t timeIndex)
{
    const auto timeCount = static_cast<double>(std::max<std::size_t>(times.size(), 1));
    const ReadMessage what = progressText(file, timeIndex, times.size());
    const auto report = [&](double part) {
        const double ofFile = (static_cast<double>(timeIndex) + part) / timeCount;
        const double ofAll =
            (static_cast<double>(m_fileNumber) + ofFile) / static_cast<double>(m_fileCount);
        m_channel.report(file.path(), static_cast<int>(100 * ofAll), what);
    };
    report(0.0);
    const vtkSmartPointer<vtkDataObject> root =
        file.read(timeIndex, [&](double part) { report(kPartOfReading * part); });
    throwPendingError(file);
    noteWarnings(file);

    std::map<std::vector<std::string>, int> uses;
    const std::vector<LeafBlock> leaves = leafBlocks(root);
    for (std::size_t i = 0; i < leaves.size(); ++i) {
        const LeafBlock& leaf = leaves[i];
        report(kPartOfReading
               + (1 - kPartOfReading) * static_cast<double>(i)
                   / static_cast<double>(leaves.size()));
        const int use = uses[leaf.names]++;
        if (leaf.data && !isUsable(file, leaf))
            continue;
        Block& block = blockAt(leaf.names, use, times.size() > 1);
        addLeaf(block, leaf.data, times.empty() ? 0.0 : times[timeIndex]);
    }
}

DataSetBuilder::Block& DataSetBuilder::blockAt(const std::vector<std::string>& names, int use,
                                               bool isTransient)
{
    const auto [place, isNew] = m_blockOfKey.try_emplace({names, use}, m_blocks.size());
    if (isNew)
        m_blocks.push_back({names, isTransient, {}});
    return m_blocks[place->second];
}

/// Blocks are named by what tells them from each other: the parts of their paths from the first one
/// that differs, but always the last one.
void DataSetBuilder::nameZones(std::size_t firstBlock, const std::string& fileName)
{
    const auto first = m_blocks.begin() + static_cast<std::ptrdiff_t>(firstBlock);
    const std::vector<std::string>* some = nullptr;
    std::ptrdiff_t shared = 0;
    for (auto block = first; block != m_blocks.end(); ++block) {
        const std::vector<std::string>& names = block->names;
        if (block->zones.empty() || names.empty())
            continue;
        const std::ptrdiff_t most = static_cast<std::ptrdiff_t>(names.size()) - 1;
        shared = some ? std::min(shared, most) : most;
        some = some ? some : &names;
        shared = std::mismatch(names.begin(), names.begin() + shared, some->begin()).first
            - names.begin();
    }
    for (auto block = first; block != m_blocks.end(); ++block) {
        const auto start = static_cast<std::size_t>(shared);
        const bool isNamed = start < block->names.size() && block->names[start] == fileName;
        const bool needsFile = block->names.empty() || (m_fileCount > 1 && !isNamed);
        std::string name = needsFile ? fileName : std::string();
        for (std::size_t i = start; i < block->names.size(); ++i)
            name += (name.empty() ? "" : "/") + block->names[i];
        for (ZoneInfo& zone : block->zones)
            zone.name = name;
    }
}

bool DataSetBuilder::isUsable(const DataFile& file, const LeafBlock& leaf)
{
    ReadMessage fault;
    if (leaf.data->GetNumberOfPoints() > m_mostPoints)
        fault = ReadMessage(
            QT_TRANSLATE_NOOP("ReadMessage", "a zone of %1 points does not fit the memory"),
            {QString::number(leaf.data->GetNumberOfPoints())});
    else
        fault = faultOf(*leaf.data);
    if (fault.isEmpty())
        return true;
    std::string name;
    for (const std::string& part : leaf.names)
        name += (name.empty() ? "" : "/") + part;
    m_index.notes.emplace_back(
        QT_TRANSLATE_NOOP("ReadMessage", "%1: the zone \"%2\" was left out: %3."),
        std::initializer_list<QString> {QFileInfo(file.path()).fileName(),
                                        QString::fromStdString(name), fault.asArgument()});
    if (!m_fault)
        m_fault = ReadFailure(file.path(), fault);
    return false;
}

void DataSetBuilder::addLeaf(Block& block, vtkDataSet* data, double time)
{
    if (!data)
        return;
    const vtkSmartPointer<vtkDataSet> zone = cleanZone(*data, m_droppedArrays);
    ZoneInfo info = zoneInfo(*zone);
    info.time = time;
    m_variables.add(*zone);
    if (block.zones.empty())
        m_enclosure.add(*zone, info);
    m_bounds.AddBounds(zone->GetBounds());
    info.sourceIndex = m_writer.write(*zone);
    block.zones.push_back(info);
}

void DataSetBuilder::noteWarnings(const DataFile& file)
{
    const QString name = QFileInfo(file.path()).fileName();
    for (const QString& warning : VtkMessages::takeWarnings()) {
        if (m_warnings.insert(name + QLatin1Char('\n') + warning).second)
            m_index.notes.emplace_back(
                "%1: %2", std::initializer_list<QString> {name, meaningOf(warning).asArgument()});
    }
}

void DataSetBuilder::noteOmissions()
{
    const auto empty = std::count_if(m_blocks.begin(), m_blocks.end(),
                                     [](const Block& block) { return block.zones.empty(); });
    if (empty == 1)
        m_index.notes.emplace_back(QT_TRANSLATE_NOOP("ReadMessage", "1 empty block was left out."));
    else if (empty > 1)
        m_index.notes.emplace_back(
            QT_TRANSLATE_NOOP("ReadMessage", "%1 empty blocks were left out."),
            std::initializer_list<QString> {QString::number(empty)});
    if (!m_droppedArrays.isEmpty()) {
        QStringList names = m_droppedArrays.values();
        names.sort();
        m_index.notes.emplace_back(
            QT_TRANSLATE_NOOP("ReadMessage",
                              "Arrays without a number per point or cell were left out: %1."),
            std::initializer_list<QString> {names.join(QStringLiteral(", "))});
    }
}

/// Static zones first, then one strand after the other.
void DataSetBuilder::numberZones()
{
    std::vector<ZoneInfo>& zones = m_index.data.zones;
    for (const Block& block : m_blocks)
        if (!block.isTransient)
            zones.insert(zones.end(), block.zones.begin(), block.zones.end());
    int strand = 0;
    for (const Block& block : m_blocks) {
        if (!block.isTransient || block.zones.empty())
            continue;
        ++strand;
        for (ZoneInfo zone : block.zones) {
            zone.strand = strand;
            zones.push_back(zone);
        }
    }
}

} // namespace corvala::host::io::reader
