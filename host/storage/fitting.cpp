// SPDX-License-Identifier: BSD-3-Clause
#include "host/storage/fitting.h"

#include "host/document/frame.h"
#include "host/storage/frame_change.h"
#include "host/storage/taking.h"

#include <QCoreApplication>

#include <algorithm>

namespace corvala::host::storage {

struct Text
{
    Q_DECLARE_TR_FUNCTIONS(DocumentText)
};

static void noteMissing(const QString& text, const Names& names, const NumberChange& change,
                        const NumberSet& unwanted, QStringList& notes)
{
    constexpr int kShown = 5;
    QStringList missing;
    int count = 0;
    for (std::int64_t number = 1; number <= change.oldCount(); ++number) {
        if (change(number) != 0 || unwanted.contains(static_cast<std::uint32_t>(number)))
            continue;
        if (++count <= kShown)
            missing << QString::fromStdString(names[static_cast<std::size_t>(number - 1)]);
    }
    if (count > kShown)
        missing << QStringLiteral("...");
    if (count > 0)
        notes << text.arg(count).arg(missing.join(QStringLiteral(", ")));
}

bool suits(const StoredFrame& frame, const DataSet& data)
{
    StoredFrame known;
    describeData(data, known);
    return known.zones == frame.zones && known.strands == frame.strands
        && known.variables == frame.variables;
}

StoredFrame fitted(const StoredFrame& frame, const DataSet& data, QStringList& notes)
{
    StoredFrame known;
    describeData(data, known);
    const Names zones = frame.zones.names();
    const Names variables = frame.variables.names();
    NumberChange zoneChange = matchNames(zones, known.zones.names());
    matchNumbers(zoneChange, known.zones.count());
    NumberChange variableChange = matchNames(variables, known.variables.names());
    matchNumbers(variableChange, known.variables.count());
    noteMissing(Text::tr("Zones that are not in the data any more (%1): %2."), zones, zoneChange,
                frame.deletedZones, notes);
    noteMissing(Text::tr("Variables that are not in the data any more (%1): %2."), variables,
                variableChange, {}, notes);

    StoredFrame result = frame;
    result.zones = known.zones;
    result.strands = known.strands;
    result.variables = known.variables;
    result.deletedZones = zoneChange(frame.deletedZones);
    renumber(result, frameChange(frame, result, zoneChange, std::move(variableChange)));
    return result;
}

/// The names of zones and variables as they are shown, for finding them in another frame.
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
