// SPDX-License-Identifier: BSD-3-Clause
#include "host/io/reader/cgns_solutions.h"

#include "host/io/reader/cgns_sections.h"
#include "host/io/reader/cgns_tree.h"
#include "host/io/reader/read_failure.h"

#include <QCoreApplication>
#include <QFileInfo>

#include <algorithm>
#include <map>
#include <optional>

namespace corvala::host::io::reader {

static constexpr char kNoSolution[] = "Null";
static constexpr char kPointers[] = "Pointers";
static constexpr char kFlowSolution[] = "FlowSolution";

using Names = std::vector<std::string>;

/// What a zone says of its solutions.
struct ZoneSolutions
{
    CgnsTree::Node zone;
    std::map<std::string, std::int64_t>
        cellNumbers; ///< new ones, see cellNumbers(); empty for none
    std::map<std::string, Names> solutions; ///< by the place of their values
    std::vector<Names> pointers; ///< one list or more, each with a name per time
    bool hasMainPointers = false; ///< without which VTK looks at none
    bool isSteady = false; ///< says nothing, and has one solution for all times
    enum State { Sound, Mended, Ordered, Unclear } state = Sound;
};

struct BaseSolutions
{
    CgnsTree::Node base;
    std::size_t times = 0;
    std::vector<ZoneSolutions> zones;
};

static bool isPointers(const std::string& name)
{
    constexpr std::size_t kLength = sizeof kPointers - 1;
    return name.rfind(kFlowSolution, 0) == 0 && name.size() > kLength
        && name.compare(name.size() - kLength, kLength, kPointers) == 0;
}

static ZoneSolutions solutionsOf(const CgnsTree& file, const CgnsTree::Node& zone)
{
    ZoneSolutions result;
    result.zone = zone;
    for (const CgnsTree::Node& solution : file.children(zone.id, "FlowSolution_t")) {
        std::string place = "Vertex";
        for (const CgnsTree::Node& location : file.children(solution.id, "GridLocation_t"))
            place = file.text(location.id);
        result.solutions[place].push_back(solution.name);
    }
    for (const CgnsTree::Node& times : file.children(zone.id, "ZoneIterativeData_t"))
        for (const CgnsTree::Node& list : file.children(times.id, "DataArray_t")) {
            if (!isPointers(list.name))
                continue;
            result.pointers.push_back(file.names(list.id));
            result.hasMainPointers =
                result.hasMainPointers || list.name == std::string(kFlowSolution) + kPointers;
        }
    return result;
}

static bool names(const std::string& pointer)
{
    return !pointer.empty() && pointer != kNoSolution;
}

static bool has(const ZoneSolutions& zone, const std::string& solution)
{
    return std::any_of(zone.solutions.begin(), zone.solutions.end(), [&](const auto& of) {
        return std::count(of.second.begin(), of.second.end(), solution) > 0;
    });
}

/// The number at the end of a name.
static std::optional<int> numberIn(const std::string& name)
{
    const std::size_t digits = name.find_last_not_of("0123456789") + 1;
    bool isNumber = false;
    const int number = QString::fromStdString(name.substr(digits)).toInt(&isNumber);
    return isNumber ? std::optional<int>(number) : std::nullopt;
}

/// By the numbers in the names where all have one, else as they are in the file.
static Names inOrder(Names solutions)
{
    const bool areNumbered = std::all_of(solutions.begin(), solutions.end(),
                                         [](const std::string& name) { return numberIn(name); });
    if (areNumbered)
        std::stable_sort(
            solutions.begin(), solutions.end(),
            [](const auto& one, const auto& other) { return numberIn(one) < numberIn(other); });
    return solutions;
}

/// For a zone of whose pointers none names a solution. One solution holds for all times when the
/// zone does not say anything else.
static void orderSolutions(ZoneSolutions& zone, std::size_t times)
{
    const bool isSilent = zone.pointers.empty();
    std::vector<Names> pointers;
    zone.isSteady = isSilent;
    for (const auto& [place, solutions] : zone.solutions) {
        if (solutions.size() == times)
            pointers.push_back(inOrder(solutions));
        else if (isSilent && solutions.size() == 1)
            pointers.emplace_back(times, solutions.front());
        zone.isSteady = zone.isSteady && solutions.size() == 1;
    }
    const bool areAll = pointers.size() == zone.solutions.size();
    if (!zone.isSteady)
        zone.state = areAll ? ZoneSolutions::Ordered : ZoneSolutions::Unclear;
    zone.pointers = pointers;
}

/// For a zone that has pointers: solutions at a place of values of which none names any.
static void orderUnnamed(ZoneSolutions& zone, std::size_t times)
{
    const std::vector<Names> pointers = zone.pointers;
    for (const auto& [place, solutions] : zone.solutions) {
        const bool isNamed = std::any_of(pointers.begin(), pointers.end(), [&](const Names& list) {
            return std::find_first_of(list.begin(), list.end(), solutions.begin(), solutions.end())
                != list.end();
        });
        if (isNamed || solutions.size() != times)
            continue;
        zone.pointers.push_back(inOrder(solutions));
        zone.state = ZoneSolutions::Ordered;
    }
}

/// Makes the pointers name solutions only, or nothing.
static void mend(ZoneSolutions& zone, std::size_t times, CgnsSolutions& result)
{
    std::size_t found = 0;
    std::size_t lost = 0;
    for (Names& list : zone.pointers) {
        if (list.size() != times) {
            zone.state = ZoneSolutions::Mended;
            result.notes.emplace_back(
                QT_TRANSLATE_NOOP("ReadMessage",
                                  "%1: %2 names solutions of %3 times, but there are %4."),
                std::initializer_list<QString> {
                    QFileInfo(result.path).fileName(), QString::fromStdString(zone.zone.name),
                    QString::number(list.size()), QString::number(times)});
        }
        list.resize(times);
        for (const std::string& name : list)
            (has(zone, name) ? found : lost) += names(name);
    }
    if (found == 0 && (lost > 0 || zone.pointers.empty()) && !zone.solutions.empty())
        return orderSolutions(zone, times);
    orderUnnamed(zone, times);
    if (lost == 0)
        return;
    zone.state = std::max(zone.state, ZoneSolutions::Mended);
    for (Names& list : zone.pointers)
        for (std::string& name : list) {
            if (!names(name) || has(zone, name))
                continue;
            result.notes.emplace_back(
                QT_TRANSLATE_NOOP("ReadMessage",
                                  "%1: the solution %2 of %3 was left out: there is none."),
                std::initializer_list<QString> {QFileInfo(result.path).fileName(),
                                                QString::fromStdString(name),
                                                QString::fromStdString(zone.zone.name)});
            name = kNoSolution;
        }
}

static std::vector<BaseSolutions> basesOf(const CgnsTree& file)
{
    std::vector<BaseSolutions> result;
    for (const CgnsTree::Node& base : file.children(file.root(), "CGNSBase_t")) {
        result.push_back({base, 0, {}});
        for (const CgnsTree::Node& times : file.children(base.id, "BaseIterativeData_t"))
            for (const int count : file.integers(times.id))
                result.back().times = static_cast<std::size_t>(std::clamp(count, 0, 1 << 24));
        const std::vector<int> dimensions = file.integers(base.id);
        for (const CgnsTree::Node& zone : file.children(base.id, "Zone_t")) {
            result.back().zones.push_back(solutionsOf(file, zone));
            result.back().zones.back().cellNumbers =
                cellNumbers(file, zone, dimensions.empty() ? 0 : dimensions.front());
        }
    }
    return result;
}

/// Whether VTK looks at pointers at all, the first zone decides.
static void mend(BaseSolutions& base, CgnsSolutions& result)
{
    if (base.times < 2)
        return;
    for (ZoneSolutions& zone : base.zones)
        mend(zone, base.times, result);
    const bool arePointers = std::any_of(base.zones.begin(), base.zones.end(), [](auto& zone) {
        return !zone.pointers.empty() && !zone.isSteady && zone.state != ZoneSolutions::Unclear;
    });
    if (!arePointers || base.zones.front().hasMainPointers)
        return;
    if (base.zones.front().pointers.empty())
        base.zones.front().pointers.emplace_back(base.times, kNoSolution);
    for (ZoneSolutions& zone : base.zones)
        zone.state = std::max(zone.state, ZoneSolutions::Mended);
}

/// Writes a file of links that differs from the other one in what belongs to which time.
class SolutionsWriter
{
public:
    SolutionsWriter(const CgnsTree& from, const QString& fromPath, CgnsTree& to, bool hasTimes)
        : m_from(from)
        , m_fromPath(fromPath)
        , m_to(to)
        , m_hasTimes(hasTimes)
    {
    }

    void write(const BaseSolutions& base)
    {
        const double node = m_to.copy(m_to.root(), m_from, base.base);
        const std::string path = '/' + base.base.name;
        std::size_t zone = 0;
        for (const CgnsTree::Node& child : m_from.children(base.base.id)) {
            const bool isZone = child.label == "Zone_t" && zone < base.zones.size();
            if (isZone)
                write(base.zones[zone++], node, path);
            else if (m_hasTimes || child.label != "BaseIterativeData_t")
                m_to.link(node, child.name, m_fromPath, path + '/' + child.name);
        }
    }

private:
    void write(const ZoneSolutions& zone, double parent, const std::string& basePath)
    {
        const double node = m_to.copy(parent, m_from, zone.zone);
        const std::string path = basePath + '/' + zone.zone.name;
        CgnsTree::Node times {0.0, {}, {}};
        for (const CgnsTree::Node& child : m_from.children(zone.zone.id)) {
            if (child.label == "ZoneIterativeData_t")
                times = child;
            else if (child.label == "Elements_t" && !zone.cellNumbers.empty())
                writeCells(zone, child, node, path);
            else
                m_to.link(node, child.name, m_fromPath, path + '/' + child.name);
        }
        if (m_hasTimes)
            writeTimes(zone, times, node, path);
    }

    /// Under their new numbers; other sections are left out.
    void writeCells(const ZoneSolutions& zone, const CgnsTree::Node& section, double parent,
                    const std::string& zonePath)
    {
        const auto first = zone.cellNumbers.find(section.name);
        if (first == zone.cellNumbers.end())
            return;
        const double node = m_to.copy(parent, m_from, section);
        for (const CgnsTree::Node& child : m_from.children(section.id)) {
            if (child.name == "ElementRange") {
                const std::vector<std::int64_t> range = m_from.numbers(child.id);
                m_to.add(node, child.name,
                         std::array<std::int64_t, 2> {first->second,
                                                      first->second + range[1] - range[0]});
            } else if (child.label == "DataArray_t")
                m_to.link(node, child.name, m_fromPath,
                          zonePath + '/' + section.name + '/' + child.name);
        }
    }

    void writeTimes(const ZoneSolutions& zone, const CgnsTree::Node& times, double parent,
                    const std::string& zonePath)
    {
        if (zone.pointers.empty() && times.name.empty())
            return;
        const double node = times.name.empty()
            ? m_to.add(parent, "ZoneIterativeData", "ZoneIterativeData_t")
            : m_to.copy(parent, m_from, times);
        if (!times.name.empty())
            for (const CgnsTree::Node& list : m_from.children(times.id))
                if (!isPointers(list.name))
                    m_to.link(node, list.name, m_fromPath,
                              zonePath + '/' + times.name + '/' + list.name);
        for (std::size_t i = 0; i < zone.pointers.size(); ++i)
            m_to.add(node, kFlowSolution + (i == 0 ? std::string() : std::to_string(i)) + kPointers,
                     zone.pointers[i]);
    }

    const CgnsTree& m_from;
    QString m_fromPath;
    CgnsTree& m_to;
    bool m_hasTimes;
};

/// Whether any zone of any base is like this.
template<class IsLike>
static bool isAnyLike(const std::vector<BaseSolutions>& bases, const IsLike& isLike)
{
    return std::any_of(bases.begin(), bases.end(), [&](const BaseSolutions& base) {
        return std::any_of(base.zones.begin(), base.zones.end(), isLike);
    });
}

template<class State>
static bool isAny(const std::vector<BaseSolutions>& bases, State state)
{
    return isAnyLike(bases, [&](const ZoneSolutions& zone) { return zone.state == state; });
}

/// VTK shows the first of several solutions that no time tells apart.
static void noteSeveral(const CgnsTree& file, const BaseSolutions& base, CgnsSolutions& result)
{
    for (const CgnsTree::Node& node : file.children(base.base.id, "Zone_t")) {
        const ZoneSolutions zone = solutionsOf(file, node);
        for (const auto& [place, solutions] : zone.solutions)
            if (solutions.size() > 1 && zone.pointers.empty())
                result.notes.emplace_back(
                    QT_TRANSLATE_NOOP("ReadMessage",
                                      "%1: of %2 solutions of %3 without a time the first one, %4, "
                                      "is shown."),
                    std::initializer_list<QString> {QFileInfo(result.path).fileName(),
                                                    QString::number(solutions.size()),
                                                    QString::fromStdString(node.name),
                                                    QString::fromStdString(solutions.front())});
    }
}

CgnsSolutions withSoundSolutions(const QString& path, const QDir& helper)
{
    CgnsSolutions result {path, {}};
    const CgnsTree file(path);
    if (!file.isOpen())
        return result;
    std::vector<BaseSolutions> bases = basesOf(file);
    for (BaseSolutions& base : bases) {
        mend(base, result);
        if (base.times < 2)
            noteSeveral(file, base, result);
    }
    const bool isUnclear = isAny(bases, ZoneSolutions::Unclear);
    const bool isOrdered = isAny(bases, ZoneSolutions::Ordered);
    const bool areNumbered =
        isAnyLike(bases, [](const ZoneSolutions& zone) { return !zone.cellNumbers.empty(); });
    if (!isUnclear && !isOrdered && !areNumbered && !isAny(bases, ZoneSolutions::Mended))
        return result;
    const QString links = helper.filePath(QStringLiteral("solutions.cgns"));
    CgnsTree copy(links, file);
    SolutionsWriter writer(file, path, copy, !isUnclear);
    for (const CgnsTree::Node& child : file.children(file.root()))
        if (child.label == "CGNSLibraryVersion_t")
            copy.copy(copy.root(), file, child);
    for (const BaseSolutions& base : bases)
        writer.write(base);
    if (!copy.isOpen() || !copy.isSound())
        throw ReadFailure::ofFullDisk(helper.path());
    const QString name = QFileInfo(path).fileName();
    if (isUnclear)
        result.notes = {ReadMessage(
            QT_TRANSLATE_NOOP("ReadMessage",
                              "%1: it does not say which solutions belong to which times; the "
                              "first ones are shown, without a time."),
            {name})};
    else if (isOrdered)
        result.notes.emplace_back(
            QT_TRANSLATE_NOOP("ReadMessage",
                              "%1: it does not say which solutions belong to which times; they "
                              "were taken in their order."),
            std::initializer_list<QString> {name});
    result.path = links;
    return result;
}

} // namespace corvala::host::io::reader
