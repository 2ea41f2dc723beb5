// SPDX-License-Identifier: BSD-3-Clause
#include "host/io/reader/ensight_case.h"
#include "host/io/reader/ensight_geometry.h"
#include "host/io/reader/ensight_steps.h"
#include "host/io/reader/ensight_values.h"
#include "host/io/reader/formats.h"
#include "host/io/reader/read_failure.h"

#include <QFileInfo>

#include <vtkCellData.h>
#include <vtkCompositeDataSet.h>
#include <vtkInformation.h>
#include <vtkMultiBlockDataSet.h>
#include <vtkPointData.h>

#include <cstring>
#include <map>
#include <set>

namespace corvala::host::io::reader {

static constexpr int kMostNames = 3; ///< of parts in a note

/// An EnSight case of version Gold or 6. What of its values is missing or not sound is left out;
/// a time whose geometry is not sound is left out when others are.
class EnSightFile : public DataFile
{
public:
    explicit EnSightFile(const QString& path);

    QString path() const override { return m_path; }
    std::vector<double> times() const override { return m_times; }
    vtkSmartPointer<vtkDataObject> read(std::size_t timeIndex,
                                        const ProgressCall& progress) override;
    std::vector<ReadMessage> notes() const override;

private:
    using Parts = std::vector<EnSightPart>;
    using Values = vtkSmartPointer<vtkFloatArray>;
    /// What was read last, which other times may share.
    struct Geometry
    {
        EnSightStep step;
        Parts parts;
    };

    /// Where a variable is missing.
    struct Gap
    {
        const EnSightVariable* variable;
        double time;
        QStringList parts; ///< names
        bool isAll; ///< it is missing everywhere
        ReadFailure reason; ///< empty where the file is sound
    };

    Parts readParts(EnSightStream& file, qint64& place) const;
    bool holds(const std::optional<Geometry>& geometry, const EnSightStep& step) const;
    bool loadGeometry(std::size_t timeIndex);
    void readGeometry(const EnSightStep& step);
    void loadParticles(double time);
    vtkSmartPointer<vtkMultiBlockDataSet> newTree(Parts& parts);
    bool isCurrent(const EnSightVariable& variable, double time) const;
    void readVariable(const EnSightVariable& variable, double time, const Parts& parts);
    void noteBareParts(const Parts& parts);
    void note(const char* text, std::initializer_list<QString> values);
    static void add(const std::vector<Values>& taken, const Parts& parts, Gap& gap);
    ReadMessage noteOf(const Gap& gap) const;
    QString timeText(double time) const { return QString::number(time, 'g', 10); }

    QString m_path;
    EnSightCase m_case;
    std::vector<double> m_times;
    EnSightSteps m_steps;
    std::vector<EnSightCoding> m_codings; ///< that the geometry can have; at last the one it has
    std::optional<Geometry> m_geometry;
    std::optional<Geometry> m_particles;
    std::map<int, unsigned int> m_blockOfPart; ///< in the order in which parts were met
    std::vector<std::string> m_blockNames;
    std::set<int> m_bareParts; ///< that were noted
    bool m_hasGeometry = false; ///< at some time
    std::optional<ReadFailure> m_failure; ///< of the first geometry that is not sound
    std::vector<Gap> m_gaps;
    std::map<const EnSightVariable*, int> m_readings;
    std::vector<ReadMessage> m_notes; ///< of the case and the geometry
};

EnSightFile::EnSightFile(const QString& path)
    : m_path(path)
    , m_case(path)
    , m_times(m_case.times())
    , m_notes(m_case.notes)
{
}

void EnSightFile::note(const char* text, std::initializer_list<QString> values)
{
    m_notes.emplace_back(text, values);
}

/// Sets `place` to where the file is not sound.
EnSightFile::Parts EnSightFile::readParts(EnSightStream& file, qint64& place) const
{
    try {
        return m_case.isGold ? readGoldGeometry(file) : readEnSight6Geometry(file);
    } catch (const ReadFailure&) {
        place = file.position();
        throw;
    }
}

/// A file without steps holds for all times that name it.
bool EnSightFile::holds(const std::optional<Geometry>& geometry, const EnSightStep& step) const
{
    return geometry && geometry->step.path == step.path
        && (geometry->step.number == step.number || !m_steps.areIn(step.path));
}

/// The byte order of a binary file is the one in which it can be read; of a file that is not sound,
/// the one in which more of it can be read.
void EnSightFile::readGeometry(const EnSightStep& step)
{
    m_geometry.reset();
    if (m_codings.empty())
        m_codings = codingsOf(step.path);
    std::map<qint64, ReadFailure> failures; // by how far reading came
    for (const EnSightCoding& coding : std::vector<EnSightCoding>(m_codings)) {
        qint64 place = 0;
        try {
            Parts parts;
            m_steps.read(step, coding,
                         [&](EnSightStream& file, bool) { parts = readParts(file, place); });
            m_geometry = {step, std::move(parts)};
            m_codings = {coding};
            return;
        } catch (const ReadFailure& failure) {
            failures.emplace(place, failure);
        }
    }
    throw ReadFailure(failures.rbegin()->second);
}

/// False when the time has no geometry, but others may have one.
bool EnSightFile::loadGeometry(std::size_t timeIndex)
{
    const double time = m_times.empty() ? 0.0 : m_times[timeIndex];
    const EnSightStep step = m_case.step(m_case.geometry, time);
    if (holds(m_geometry, step))
        return true;
    try {
        readGeometry(step);
        m_hasGeometry = true;
        noteBareParts(m_geometry->parts);
        return true;
    } catch (const ReadFailure& failure) {
        const bool isForAll = !m_case.geometry.hasNumber() && !m_steps.areIn(step.path);
        const bool isLast = timeIndex + 1 >= m_times.size();
        m_failure = m_failure.value_or(failure);
        if (!m_hasGeometry && (isForAll || isLast))
            throw ReadFailure(*m_failure);
        note(QT_TRANSLATE_NOOP("ReadMessage", "Time %1 was left out: %2: %3."),
             {timeText(time), QFileInfo(failure.file).fileName(), failure.message.asArgument()});
        return false;
    }
}

void EnSightFile::loadParticles(double time)
{
    if (!m_case.particles)
        return;
    const EnSightStep step = m_case.step(*m_case.particles, time);
    if (holds(m_particles, step))
        return;
    m_particles.reset();
    try {
        m_steps.read(step, m_codings.front(), [&](EnSightStream& file, bool) {
            m_particles = {step, {readParticles(file)}};
        });
    } catch (const ReadFailure& failure) {
        m_particles.reset();
        note(QT_TRANSLATE_NOOP("ReadMessage", "Particles were left out at time %1: %2: %3."),
             {timeText(time), QFileInfo(failure.file).fileName(), failure.message.asArgument()});
    }
}

/// A part with points only was perhaps cut off.
void EnSightFile::noteBareParts(const Parts& parts)
{
    for (const EnSightPart& part : parts)
        if (part.grid->GetNumberOfPoints() > 0 && part.grid->GetNumberOfCells() == 0
            && m_bareParts.insert(part.number).second)
            note(QT_TRANSLATE_NOOP("ReadMessage", "%1 has points, but no elements."),
                 {QString::fromStdString(part.name)});
}

/// Gives the parts grids of their own, which share points and cells with the others, and puts them
/// into a tree with a block for each part that was met so far.
vtkSmartPointer<vtkMultiBlockDataSet> EnSightFile::newTree(Parts& parts)
{
    auto tree = vtkSmartPointer<vtkMultiBlockDataSet>::New();
    for (EnSightPart& part : parts) {
        const auto [block, isNew] =
            m_blockOfPart.try_emplace(part.number, static_cast<unsigned int>(m_blockOfPart.size()));
        if (isNew)
            m_blockNames.push_back(part.name);
        const auto copy = vtkSmartPointer<vtkDataSet>::Take(part.grid->NewInstance());
        copy->ShallowCopy(part.grid);
        part.grid = copy;
        tree->SetBlock(block->second, copy);
    }
    tree->SetNumberOfBlocks(static_cast<unsigned int>(m_blockNames.size()));
    for (unsigned int i = 0; i < m_blockNames.size(); ++i)
        tree->GetMetaData(i)->Set(vtkCompositeDataSet::NAME(), m_blockNames[i].c_str());
    return tree;
}

/// Values from before the geometry are those of another geometry.
bool EnSightFile::isCurrent(const EnSightVariable& variable, double time) const
{
    if (m_case.isSteady(variable.files))
        return true;
    const bool isOfParticles = variable.place == EnSightVariable::Place::Particles;
    const std::optional<double> own = m_case.lastTime(variable.files, time);
    const std::optional<double> geometry =
        m_case.lastTime(isOfParticles ? *m_case.particles : m_case.geometry, time);
    return own && (!geometry || *own >= *geometry);
}

static bool isSame(vtkFloatArray& one, vtkFloatArray& other)
{
    const vtkIdType count = one.GetNumberOfValues();
    const auto size = sizeof(float) * static_cast<std::size_t>(count);
    return count == other.GetNumberOfValues()
        && std::memcmp(one.GetPointer(0), other.GetPointer(0), size) == 0;
}

void EnSightFile::readVariable(const EnSightVariable& variable, double time, const Parts& parts)
{
    const EnSightStep step = m_case.step(variable.files, time);
    std::vector<Values> taken(parts.size());
    std::set<std::size_t> unclear;
    const auto take = [&](std::size_t part, const Values& values) {
        if (taken[part] && !isSame(*taken[part], *values))
            unclear.insert(part);
        taken[part] = values;
    };
    Gap gap {&variable, time, {}, true, ReadFailure(step.path, ReadMessage())};
    try {
        m_steps.read(step, m_codings.front(), [&](EnSightStream& file, bool wanted) {
            readEnSightValues(
                file, m_case.isGold, variable, parts,
                wanted ? TakeEnSightValues(take) : [](auto&&...) {});
        });
        if (!unclear.empty())
            gap.reason.message =
                ReadMessage(QT_TRANSLATE_NOOP("ReadMessage", "it has several values for a place"));
    } catch (const ReadFailure& failure) {
        gap.reason = failure;
    }
    for (const std::size_t part : unclear)
        taken[part] = nullptr;
    add(taken, parts, gap);
    ++m_readings[&variable];
    const bool isWhole = gap.reason.message.isEmpty()
        && (gap.parts.isEmpty() || taken.back() || m_steps.areIn(step.path));
    if (!isWhole)
        m_gaps.push_back(gap);
}

/// Adds the values that were taken to the parts, and those parts to the gap that have none.
void EnSightFile::add(const std::vector<Values>& taken, const Parts& parts, Gap& gap)
{
    const EnSightVariable& variable = *gap.variable;
    const bool isOfCells = variable.place == EnSightVariable::Place::Elements;
    for (std::size_t i = 0; i < parts.size(); ++i) {
        vtkDataSet& grid = *parts[i].grid;
        if (taken[i])
            grid.GetAttributes(isOfCells ? vtkDataObject::CELL : vtkDataObject::POINT)
                ->AddArray(taken[i]);
        else if (valueCount(variable, parts[i]) > 0)
            gap.parts << QString::fromStdString(parts[i].name);
        gap.isAll = gap.isAll && !taken[i];
    }
}

/// What a sound file does not say of the last parts, it perhaps says never; but if it does so at
/// other times, or there is one time only, it can be cut off.
std::vector<ReadMessage> EnSightFile::notes() const
{
    std::map<std::pair<const EnSightVariable*, QStringList>, int> uses;
    for (const Gap& gap : m_gaps)
        uses[{gap.variable, gap.parts}] += gap.reason.message.isEmpty() ? 1 : 0;
    std::vector<ReadMessage> result = m_notes;
    for (const Gap& gap : m_gaps) {
        const int readings = m_readings.at(gap.variable);
        if (readings == 1 || uses[{gap.variable, gap.parts}] < readings)
            result.push_back(noteOf(gap));
    }
    return result;
}

ReadMessage EnSightFile::noteOf(const Gap& gap) const
{
    const QString name = QString::fromStdString(gap.variable->name);
    const QString file = QFileInfo(gap.reason.file).fileName();
    const QString why = gap.reason.message.isEmpty()
        ? ReadMessage(QT_TRANSLATE_NOOP("ReadMessage", "there are no values of it")).asArgument()
        : gap.reason.message.asArgument();
    QStringList parts = gap.parts.mid(0, kMostNames);
    if (gap.parts.size() > kMostNames)
        parts << QStringLiteral("...");
    const QString where = parts.join(QStringLiteral(", "));
    if (gap.isAll && m_times.empty())
        return ReadMessage(QT_TRANSLATE_NOOP("ReadMessage", "%1 was left out: %2: %3."),
                           {name, file, why});
    if (gap.isAll)
        return ReadMessage(QT_TRANSLATE_NOOP("ReadMessage", "%1 was left out at time %4: %2: %3."),
                           {name, file, why, timeText(gap.time)});
    if (gap.parts.isEmpty())
        return ReadMessage(
            QT_TRANSLATE_NOOP("ReadMessage", "%1: what follows the values was left out: %2."),
            {file, why});
    if (m_times.empty())
        return ReadMessage(QT_TRANSLATE_NOOP("ReadMessage", "%1 was left out in %4: %2: %3."),
                           {name, file, why, where});
    return ReadMessage(
        QT_TRANSLATE_NOOP("ReadMessage", "%1 was left out in %4 at time %5: %2: %3."),
        {name, file, why, where, timeText(gap.time)});
}

vtkSmartPointer<vtkDataObject> EnSightFile::read(std::size_t timeIndex,
                                                 const ProgressCall& progress)
{
    const double time = m_times.empty() ? 0.0 : m_times[timeIndex];
    if (!loadGeometry(timeIndex))
        return vtkSmartPointer<vtkMultiBlockDataSet>::New();
    loadParticles(time);
    Parts parts = m_geometry->parts;
    const std::size_t particles = parts.size();
    if (m_particles)
        parts.push_back(m_particles->parts.front());
    const vtkSmartPointer<vtkMultiBlockDataSet> tree = newTree(parts);
    const auto middle = parts.begin() + static_cast<std::ptrdiff_t>(particles);
    const Parts ofGeometry(parts.begin(), middle);
    const Parts ofParticles(middle, parts.end());
    for (std::size_t i = 0; i < m_case.variables.size(); ++i) {
        progress(static_cast<double>(i) / static_cast<double>(m_case.variables.size()));
        const EnSightVariable& variable = m_case.variables[i];
        const bool isOfParticles = variable.place == EnSightVariable::Place::Particles;
        const Parts& owners = isOfParticles ? ofParticles : ofGeometry;
        if (!owners.empty() && isCurrent(variable, time))
            readVariable(variable, time, owners);
    }
    return tree;
}

std::unique_ptr<DataFile> openEnSight(const QString& path)
{
    return std::make_unique<EnSightFile>(path);
}

} // namespace corvala::host::io::reader
