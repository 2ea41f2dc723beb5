// SPDX-License-Identifier: BSD-3-Clause
#include "host/storage/fitting.h"

#include "host/document/frame.h"
#include "host/storage/frame_change.h"
#include "host/storage/taking.h"

#include <QCoreApplication>

#include <algorithm>
#include <cmath>

namespace corvala::host::storage {

struct Text
{
    Q_DECLARE_TR_FUNCTIONS(DocumentText)
};

/// Adds a note with how many the numbers are, and what is to say of the first ones.
template<class Describe>
static void note(const QString& text, const NumberSet& numbers, const Describe& describe,
                 QStringList& notes)
{
    constexpr int kShown = 5;
    QStringList described;
    for (const std::uint32_t number : numbers) {
        if (described.size() == kShown) {
            described << QStringLiteral("...");
            break;
        }
        described << describe(number);
    }
    if (!described.isEmpty())
        notes << text.arg(numbers.cardinality()).arg(described.join(QStringLiteral(", ")));
}

static QString nameOf(const Names& names, std::int64_t number)
{
    return QString::fromStdString(names[static_cast<std::size_t>(number - 1)]);
}

static void noteMissing(const QString& text, const Names& names, const NumberChange& change,
                        const NumberSet& unwanted, QStringList& notes)
{
    NumberSet missing;
    for (std::int64_t number = 1; number <= change.oldCount(); ++number)
        if (change(number) == 0 && !unwanted.contains(static_cast<std::uint32_t>(number)))
            missing.add(static_cast<std::uint32_t>(number));
    note(
        text, missing, [&names](std::int64_t number) { return nameOf(names, number); }, notes);
}

/// What is found again of zones or variables.
struct Match
{
    NumberChange change;
    NumberSet byNumber; ///< old numbers of what was found by that only
};

static Match matched(const Names& before, const Names& now)
{
    Match match {matchNames(before, now), {}};
    const NumberChange byName = match.change;
    matchNumbers(match.change, static_cast<std::int64_t>(now.size()));
    for (std::int64_t number = 1; number <= byName.oldCount(); ++number)
        if (byName(number) == 0 && match.change(number) != 0)
            match.byNumber.add(static_cast<std::uint32_t>(number));
    return match;
}

/// The names of zones or variables as they are shown, by their numbers in the whole data.
static Names shownNames(Names names, const std::vector<std::int64_t>& numbers,
                        const std::map<std::int64_t, std::string>& newNames)
{
    for (std::size_t i = 0; i < names.size(); ++i)
        if (const auto renamed = newNames.find(numbers[i + 1]); renamed != newNames.end())
            names[i] = renamed->second;
    return names;
}

static Names shownZones(const StoredFrame& frame)
{
    return shownNames(frame.zones.names(), numbersInFrame(frame), frame.zoneNames);
}

static Names shownVariables(const StoredFrame& frame)
{
    std::vector<std::int64_t> same(static_cast<std::size_t>(frame.variables.count()) + 1);
    for (std::size_t i = 0; i < same.size(); ++i)
        same[i] = static_cast<std::int64_t>(i);
    return shownNames(frame.variables.names(), same, frame.variableNames);
}

/// Tells the number, the name that was shown and the one that the data have now.
static void noteMatches(const QString& text, const NumberSet& numbers, const Names& before,
                        const Names& now, QStringList& notes)
{
    const auto describe = [&](std::int64_t number) {
        return QStringLiteral("%1 \"%2\" = \"%3\"")
            .arg(number)
            .arg(nameOf(before, number), nameOf(now, number));
    };
    note(text, numbers, describe, notes);
}

/// Whether zones of strands are shown with the time: one between two of theirs is that before it.
static bool hasTime(const DataSet& data, double time)
{
    const std::vector<double> times = data.solutionTimes();
    const double tolerance = 1e-9 * std::max(1.0, std::abs(time)); // of a time written twice
    return !times.empty() && time >= times.front() - tolerance && time <= times.back() + tolerance;
}

bool suits(const StoredFrame& frame, const DataSet& data)
{
    StoredFrame known;
    describeData(data, known);
    return known.zones == frame.zones && known.strands == frame.strands
        && known.variables == frame.variables && (!frame.time || hasTime(data, *frame.time));
}

static void noteChanges(const StoredFrame& frame, const StoredFrame& known, const Match& zones,
                        const Match& variables, QStringList& notes)
{
    noteMissing(Text::tr("Zones that are not in the data any more (%1): %2."), frame.zones.names(),
                zones.change, frame.deletedZones, notes);
    noteMissing(Text::tr("Variables that are not in the data any more (%1): %2."),
                frame.variables.names(), variables.change, {}, notes);
    const Names zonesNow = known.zones.names();
    noteMatches(Text::tr("Zones matched by number (%1): %2."), zones.byNumber - frame.deletedZones,
                shownZones(frame), zonesNow, notes);
    noteMatches(Text::tr("Zones matched by number, which stay deleted (%1): %2."),
                zones.byNumber & frame.deletedZones, shownZones(frame), zonesNow, notes);
    noteMatches(Text::tr("Variables matched by number (%1): %2."), variables.byNumber,
                shownVariables(frame), known.variables.names(), notes);
}

StoredFrame fitted(const StoredFrame& frame, const DataSet& data, QStringList& notes)
{
    StoredFrame known;
    describeData(data, known);
    Match zones = matched(frame.zones.names(), known.zones.names());
    Match variables = matched(frame.variables.names(), known.variables.names());
    noteChanges(frame, known, zones, variables, notes);

    StoredFrame result = frame;
    if (frame.time && !hasTime(data, *frame.time)) {
        notes << Text::tr("The data do not reach the solution time %1.").arg(*frame.time);
        result.time.reset();
    }
    result.zones = known.zones;
    result.strands = known.strands;
    result.variables = known.variables;
    result.deletedZones = zones.change(frame.deletedZones);
    renumber(result, frameChange(frame, result, zones.change, std::move(variables.change)));
    return result;
}

/// What is known of the data of an open frame, under the names that are shown.
static StoredFrame description(const Frame& frame)
{
    StoredFrame known;
    if (!frame.hasData())
        return known;
    DataSet shown = *frame.data();
    shown.readZoneNames.clear();
    shown.readVariableNames.clear();
    describeData(shown, known);
    return known;
}

/// Values that name a variable which is not there stay as they are in the open frame.
static void keepLost(const std::vector<StoredValue>& before, StoredFrame& styles, const Frame& open)
{
    for (const StoredValue& stored : before) {
        const bool isThere =
            std::any_of(styles.values.begin(), styles.values.end(), [&](const StoredValue& other) {
                return other.attribute == stored.attribute && other.index == stored.index;
            });
        if (!isThere)
            styles.values.push_back(
                {stored.attribute, stored.index,
                 open.values().get(Schema::instance().at(stored.attribute), stored.index)});
    }
}

static void noteLineMaps(const NumberSet& missing, QStringList& notes)
{
    if (!missing.isEmpty())
        notes << Text::tr("Line maps that the frame or its variables lack: %1.")
                     .arg(QString::fromStdString(host::toText(missing, 0)));
}

StyleSheet styleSheet(const StoredDocument& document, const Frame& open, QStringList& notes)
{
    StyleSheet sheet;
    sheet.values = document.values;
    sheet.palette = document.palette;
    if (document.activeFrame == 0)
        return sheet;
    const StoredFrame& stored = document.frames[static_cast<std::size_t>(document.activeFrame - 1)];
    const StoredFrame known = description(open);
    const Names zones = shownZones(stored);
    const NumberChange zoneChange = matchNames(zones, known.zones.names());
    NumberChange variableChange = matchNames(shownVariables(stored), known.variables.names());
    noteMissing(Text::tr("Zones that the data lack (%1): %2."), zones, zoneChange,
                stored.deletedZones, notes);
    noteMissing(Text::tr("Variables that the data lack (%1): %2."), shownVariables(stored),
                variableChange, {}, notes);
    const FrameChange change = frameChange(stored, known, zoneChange, std::move(variableChange));

    sheet.frame = stored;
    NumberSet lost;
    renumber(sheet.frame.values, change);
    keepLost(stored.values, sheet.frame, open);
    renumber(sheet.frame.fieldStyle, change, lost);
    moveMaps(sheet.frame.fieldStyle, change.fieldMaps);
    sheet.fieldMaps = change.fieldMaps.found();
    lost = NumberSet();
    renumber(sheet.frame.lineStyle, change, lost);
    const NumberSet lines = allUpTo(stored.lineMapCount);
    sheet.lineMaps = (lines & allUpTo(open.lineMapCount())) - lost;
    noteLineMaps(lines - sheet.lineMaps, notes);
    return sheet;
}

} // namespace corvala::host::storage
