// SPDX-License-Identifier: BSD-3-Clause
#include "sdk/common/common.h"

#include "host/document/document.h"
#include "host/document/line_map_name.h"
#include "sdk/private/set_record.h"
#include "sdk/uicommon/question.h"

#include <vtkDataArray.h>

#include <QCoreApplication>
#include <QStringList>

#include <set>

namespace corvala::sdk {

using host::DataSet;
using host::Document;
using host::Frame;

static QString text(const char* source)
{
    return QCoreApplication::translate("LineMapZone", source);
}

/// Variables that the line maps draw; numbers that are no line map are skipped.
static std::set<int> drawnVariables(const Frame& frame, const host::NumberSet& maps)
{
    const bool isPolar = frame.plotType() == PlotType_LinePolar;
    const auto& keys = style::lineMap.assign;
    const style::VariableKey first = isPolar ? keys.thetaAxisVar : keys.xAxisVar;
    const style::VariableKey second = isPolar ? keys.rAxisVar : keys.yAxisVar;
    std::set<int> variables;
    for (const std::uint32_t map : maps) {
        if (map < 1 || map > frame.lineMapCount())
            continue;
        variables.insert(frame.lineInteger(first, map));
        variables.insert(frame.lineInteger(second, map));
    }
    return variables;
}

static bool hasPointValues(const DataSet& data, CvlInt64 zone, int variable)
{
    if (!data.hasVariable(variable))
        return true; // no zone has values of it
    if (data.variable(variable).isCoordinate())
        return data.zone(zone).pointCount > 0;
    const host::ZoneValues values = data.values(zone, variable);
    return values.array && values.location == host::ValueLocation::Points;
}

static QStringList variablesWithoutPointValues(const Frame& frame, CvlInt64 zone,
                                               const host::NumberSet& maps)
{
    QStringList names;
    for (const int variable : drawnVariables(frame, maps)) {
        if (!hasPointValues(*frame.data(), zone, variable))
            names << QString::fromStdString(host::shownVariableName(frame.data(), variable));
    }
    return names;
}

/// What speaks against the zone, one sentence each.
static QStringList objections(const Frame& frame, CvlInt64 zone, const host::NumberSet& maps)
{
    QStringList found;
    if (!frame.data()->zone(zone).ordered)
        found << text(QT_TRANSLATE_NOOP(
                          "LineMapZone",
                          "Zone %1 is not ordered, so a line through its points follows no order."))
                     .arg(zone);
    const QStringList missing = variablesWithoutPointValues(frame, zone, maps);
    if (!missing.isEmpty())
        found << text(
                     QT_TRANSLATE_NOOP("LineMapZone", "Zone %1 has no values at its points of %2."))
                     .arg(QString::number(zone), missing.join(QStringLiteral(", ")));
    return found;
}

bool confirmLineMapZoneSelection(CvlInt64 zone, const toolbox::Set& lineMaps)
{
    const Frame* const frame = Document::instance().activeFrame();
    if (!frame || !frame->hasData() || !frame->data()->hasZone(zone))
        return true; // the write itself refuses the number
    const QStringList found = objections(
        *frame, zone, lineMaps.handle() ? lineMaps.handle()->members : host::NumberSet());
    return found.isEmpty()
        || ui::askYesNo(
               text(QT_TRANSLATE_NOOP("LineMapZone", "Zone")),
               found.join(QLatin1Char('\n')) + QLatin1Char('\n')
                   + text(QT_TRANSLATE_NOOP("LineMapZone", "Do you want to use it anyway?")));
}

} // namespace corvala::sdk
