// SPDX-License-Identifier: BSD-3-Clause
#include "host/document/data_joining.h"
#include "host/document/undo_texts.h"
#include "host/operations/executor.h"

#include <numeric>

namespace corvala::host {

/// Adds the numbers after `before` up to `now`.
static void extend(NumberSet& set, CvlInt64 before, CvlInt64 now)
{
    set |= allUpTo(now) - allUpTo(before);
}

static FrameMaps withData(const FrameMaps& before, std::shared_ptr<DataSet> data)
{
    FrameMaps after = before;
    after.fieldMaps = std::make_shared<FieldMapList>(*data);
    std::vector<std::int64_t> newToOld(static_cast<std::size_t>(after.fieldMaps->count()), 0);
    const auto end = newToOld.begin() + static_cast<std::ptrdiff_t>(before.fieldMaps->count());
    std::iota(newToOld.begin(), end, 1);
    after.fieldStyle.rearrange(newToOld);
    extend(after.activeFieldMaps, before.fieldMaps->count(), after.fieldMaps->count());
    extend(after.enabledZones, before.data->zoneCount(), data->zoneCount());
    extend(after.enabledVariables, before.data->variableCount(), data->variableCount());
    after.data = std::move(data);
    return after;
}

Outcome Executor::operator()(const AddData& operation)
{
    if (!operation.data || !hasData())
        return {StyleWrite_NoDocument};
    const bool wasTransient = maps().data->isTransient();
    FrameMaps after = withData(maps(), joined(*maps().data, *operation.data));
    after.origins.push_back(operation.origin);
    const std::vector<double> times = after.data->solutionTimes();
    const Outcome outcome =
        replaceMaps(std::move(after), undoText(QT_TRANSLATE_NOOP("UndoTexts", "Add data")),
                    {eventOf(StateCode_FieldMapListChanged), eventOf(StateCode_ZonesAdded),
                     eventOf(StateCode_VariableListChanged)});
    if (!wasTransient && !times.empty())
        (*this)(SetSolutionTime {times.front()});
    return outcome;
}

} // namespace corvala::host
