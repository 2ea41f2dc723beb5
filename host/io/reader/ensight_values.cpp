// SPDX-License-Identifier: BSD-3-Clause
#include "host/io/reader/ensight_values.h"

#include <QCoreApplication>

#include <algorithm>
#include <limits>
#include <map>
#include <set>

namespace corvala::host::io::reader {

using Place = EnSightVariable::Place;

static constexpr float kUndefined = std::numeric_limits<float>::quiet_NaN();

vtkIdType valueCount(const EnSightVariable& variable, const EnSightPart& part)
{
    return variable.place == Place::Elements ? part.grid->GetNumberOfCells()
                                             : part.grid->GetNumberOfPoints();
}

/// The symmetric tensors of the files go 11, 22, 33, 12, 13, 23; those of VTK end with 23, 13.
static int targetComponent(int component, int components)
{
    const bool isSwapped = components == 6 && component >= 4;
    return isSwapped ? 9 - component : component;
}

static bool beginsPart(const std::string& line)
{
    return line.rfind("part", 0) == 0;
}

/// Values are listed with the numbers of their points or cells.
static bool isPartial(const std::string& line)
{
    return line.find(" partial") != std::string::npos;
}

/// Reads the values of one step, in any version of the format.
class EnSightValueReader
{
public:
    EnSightValueReader(EnSightStream& file, const EnSightVariable& variable,
                       const std::vector<EnSightPart>& parts, const TakeEnSightValues& take)
        : m_file(file)
        , m_variable(variable)
        , m_parts(parts)
        , m_take(take)
    {
        for (std::size_t i = 0; i < parts.size(); ++i)
            m_partOfNumber.emplace(parts[i].number, i);
    }

    void readGold();
    void readEnSight6();
    void readParticles();

private:
    using Line = std::optional<std::string>;
    using Values = vtkSmartPointer<vtkFloatArray>;

    std::size_t nextPart(int number);
    Values newValues() const;
    void allocate(vtkFloatArray& values, vtkIdType count, const std::string& line) const;
    void readByComponent(vtkFloatArray& values, vtkIdType first, vtkIdType count,
                         const std::string& line);
    void readTogether(vtkFloatArray& values, vtkIdType first, vtkIdType count);
    Line readElements(const EnSightPart& part, vtkFloatArray& values, Line line);
    Line skipEmpty(Line line);
    Line readPart(std::size_t number, Line line);
    Line readSharedNodes();
    [[noreturn]] void failOf(const std::string& line) const;

    EnSightStream& m_file;
    const EnSightVariable& m_variable;
    const std::vector<EnSightPart>& m_parts;
    const TakeEnSightValues& m_take;
    std::map<int, std::size_t> m_partOfNumber;
    bool m_areTogether = false; ///< components of an element
};

void EnSightValueReader::failOf(const std::string& line) const
{
    m_file.fail(
        QT_TRANSLATE_NOOP("ReadMessage", "\"%1\" stands in it where nothing like that is due"),
        {QString::fromUtf8(line.substr(0, 40).c_str())});
}

/// The place of the part among those of the geometry.
std::size_t EnSightValueReader::nextPart(int number)
{
    const auto found = m_partOfNumber.find(number);
    if (found == m_partOfNumber.end())
        m_file.fail(QT_TRANSLATE_NOOP("ReadMessage", "part %1 is not in the geometry"),
                    {QString::number(number)});
    return found->second;
}

EnSightValueReader::Values EnSightValueReader::newValues() const
{
    auto values = Values::New();
    values->SetName(m_variable.name.c_str());
    values->SetNumberOfComponents(m_variable.components);
    return values;
}

/// Makes room for as many values as the file holds, or as are there with those that are not listed.
void EnSightValueReader::allocate(vtkFloatArray& values, vtkIdType count,
                                  const std::string& line) const
{
    if (!isPartial(line))
        m_file.requireRoom(count * values.GetNumberOfComponents());
    values.SetNumberOfTuples(count);
}

/// Component after component. The line before them may say that some values are undefined, or that
/// only some are listed.
void EnSightValueReader::readByComponent(vtkFloatArray& values, vtkIdType first, vtkIdType count,
                                         const std::string& line)
{
    const bool hasUndefined = line.find(" undef") != std::string::npos;
    const bool isListed = isPartial(line);
    const float undefined = hasUndefined ? m_file.floats(1).front() : kUndefined;
    const std::vector<std::int32_t> listed =
        isListed ? m_file.ints(m_file.count()) : std::vector<std::int32_t>();
    for (const std::int32_t number : listed)
        if (number < 1 || number > count)
            m_file.fail(QT_TRANSLATE_NOOP("ReadMessage", "%1 is no count or number of a point"),
                        {QString::number(number)});
    const int components = values.GetNumberOfComponents();
    for (int c = 0; c < components; ++c) {
        const int target = targetComponent(c, components);
        const std::vector<float> found =
            m_file.floats(isListed ? static_cast<qint64>(listed.size()) : count);
        for (vtkIdType i = 0; i < count && isListed; ++i)
            values.SetTypedComponent(first + i, target, kUndefined);
        for (std::size_t i = 0; i < found.size(); ++i) {
            const vtkIdType place = isListed ? listed[i] - 1 : static_cast<vtkIdType>(i);
            const bool isUndefined = hasUndefined && found[i] == undefined;
            values.SetTypedComponent(first + place, target, isUndefined ? kUndefined : found[i]);
        }
    }
}

/// All components of a point or cell beside each other.
void EnSightValueReader::readTogether(vtkFloatArray& values, vtkIdType first, vtkIdType count)
{
    const int components = values.GetNumberOfComponents();
    m_file.floats(values.GetPointer(first * components), count * components);
    for (vtkIdType i = first; i < first + count && components == 6; ++i)
        std::swap(*values.GetPointer(i * components + 4), *values.GetPointer(i * components + 5));
}

/// From the line that names a kind of elements to the one after the last kind of the part.
EnSightValueReader::Line EnSightValueReader::readElements(const EnSightPart& part,
                                                          vtkFloatArray& values, Line line)
{
    std::set<std::string> kinds;
    vtkIdType missing = part.grid->GetNumberOfCells();
    allocate(values, missing, *line);
    for (; line && !beginsPart(*line); line = m_file.keyword()) {
        const std::string kind = line->substr(0, line->find(' '));
        vtkIdType first = 0;
        auto elements = part.elements.begin();
        for (; elements != part.elements.end() && elements->kind != kind; ++elements)
            first += elements->isGhost ? 0 : elements->count;
        if (elements == part.elements.end() || !kinds.insert(kind).second)
            failOf(*line);
        const Values ghosts = newValues();
        if (elements->isGhost)
            allocate(*ghosts, elements->count, *line);
        else
            missing -= elements->count;
        vtkFloatArray& target = elements->isGhost ? *ghosts : values;
        if (m_areTogether)
            readTogether(target, elements->isGhost ? 0 : first, elements->count);
        else
            readByComponent(target, elements->isGhost ? 0 : first, elements->count, *line);
    }
    if (missing > 0)
        m_file.fail(QT_TRANSLATE_NOOP("ReadMessage", "%1 values of a part are missing in it"),
                    {QString::number(missing)});
    return line;
}

/// What a file may say of a part without points or cells.
EnSightValueReader::Line EnSightValueReader::skipEmpty(Line line)
{
    for (; line && !beginsPart(*line); line = m_file.keyword())
        m_file.floats(0);
    return line;
}

/// The values of a part from the line after its number, which must be followed by another part or
/// the end. Returns the line behind them.
EnSightValueReader::Line EnSightValueReader::readPart(std::size_t number, Line line)
{
    const EnSightPart& part = m_parts[number];
    const vtkIdType count = valueCount(m_variable, part);
    if (count == 0)
        return skipEmpty(line);
    if (!line || beginsPart(*line))
        return line;
    const Values values = newValues();
    if (m_variable.place == Place::Elements && !part.isBlock) {
        line = readElements(part, *values, line);
    } else if (line->rfind("block", 0) == 0 || line->rfind("coordinates", 0) == 0) {
        allocate(*values, count, *line);
        if (m_areTogether && !m_file.isText())
            readTogether(*values, 0, count);
        else
            readByComponent(*values, 0, count, *line);
        line = m_file.keyword();
    }
    if (line && !beginsPart(*line))
        failOf(*line);
    m_take(number, values);
    return line;
}

void EnSightValueReader::readGold()
{
    m_file.line();
    Line line = m_file.keyword();
    while (line) {
        if (!beginsPart(*line))
            failOf(*line);
        const std::size_t number = nextPart(m_file.oneInt());
        line = readPart(number, m_file.keyword());
    }
}

/// Nodes of all parts that are no blocks come first.
EnSightValueReader::Line EnSightValueReader::readSharedNodes()
{
    const auto shares = [](const EnSightPart& part) {
        return !part.isBlock && part.grid->GetNumberOfPoints() > 0;
    };
    const auto first = std::find_if(m_parts.begin(), m_parts.end(), shares);
    if (m_variable.place != Place::Nodes || first == m_parts.end())
        return m_file.keyword();
    const vtkIdType count = first->grid->GetNumberOfPoints();
    const Values values = newValues();
    allocate(*values, count, {});
    readTogether(*values, 0, count);
    const Line line = m_file.keyword();
    if (line && !beginsPart(*line))
        failOf(*line);
    for (std::size_t i = 0; i < m_parts.size(); ++i)
        if (shares(m_parts[i]))
            m_take(i, values);
    return line;
}

void EnSightValueReader::readEnSight6()
{
    m_areTogether = true;
    m_file.line();
    Line line = readSharedNodes();
    while (line) {
        if (!beginsPart(*line))
            failOf(*line);
        const std::size_t number = nextPart(QString::fromUtf8(line->c_str() + 4).toInt());
        if (m_variable.place == Place::Nodes && !m_parts[number].isBlock)
            failOf(*line);
        line = readPart(number, m_file.keyword());
    }
}

void EnSightValueReader::readParticles()
{
    m_file.line();
    const vtkIdType count = m_parts.front().grid->GetNumberOfPoints();
    const Values values = newValues();
    allocate(*values, count, {});
    readTogether(*values, 0, count);
    if (const Line line = m_file.keyword())
        failOf(*line);
    m_take(0, values);
}

void readEnSightValues(EnSightStream& file, bool isGold, const EnSightVariable& variable,
                       const std::vector<EnSightPart>& parts, const TakeEnSightValues& take)
{
    EnSightValueReader reader(file, variable, parts, take);
    if (variable.place == Place::Particles)
        reader.readParticles();
    else if (isGold)
        reader.readGold();
    else
        reader.readEnSight6();
}

} // namespace corvala::host::io::reader
